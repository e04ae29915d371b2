// Copyright Velmorant. All Rights Reserved.

#include "Toolbar/SVelmorantUserOptions.h"

#include "Framework/Application/SlateApplication.h"
#include "Styling/AppStyle.h"
#include "Toolbar/VelmorantToolLaunchers.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantUser.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantUserOptions
{
	const FMargin LinePadding(4.0f, 2.0f); // Slate units

	/** As the service knows them; the name they signed in with when the service gave none. */
	FString GetDisplayName(const UVelmorantUser& User)
	{
		const FLoginInfo Login = User.GetUserLoginInfo();
		const FString FullName = (Login.FirstName + TEXT(" ") + Login.LastName).TrimStartAndEnd();
		return FullName.IsEmpty() ? User.GetUserInfo().UserName : FullName;
	}
}

void SVelmorantUserOptions::Construct(const FArguments&)
{
	UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
	UVelmorantSDKEngineSubsystem* Subsystem = UVelmorantSDKEngineSubsystem::Get();
	const UVelmorantUser* User = Subsystem ? Subsystem->GetVelmorantUser() : nullptr;

	// clang-format off
	ChildSlot
	[
		User && User->HasValidToken() ? MakeUser(*User) : MakeNobody()
	];
	// clang-format on
}

TSharedRef<SWidget> SVelmorantUserOptions::MakeUser(const UVelmorantUser& User)
{
	// clang-format off
	const TSharedRef<SWidget> Who =
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeText("UserName", FText::FromString(VelmorantUserOptions::GetDisplayName(User)))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeText("UserEmail", FText::FromString(User.GetUserLoginInfo().Email))
		];
	// clang-format on
	return MakePanel(Who, LOCTEXT("DeveloperPanel_Label", "Developer Panel"));
}

TSharedRef<SWidget> SVelmorantUserOptions::MakeNobody()
{
	return MakePanel(MakeText("UserName", LOCTEXT("DeveloperNotRegistered", "Developer not registered")), LOCTEXT("DeveloperLogin", "Login"));
}

TSharedRef<SWidget> SVelmorantUserOptions::MakePanel(const TSharedRef<SWidget>& Who, const FText& ButtonLabel)
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeLine("ShowFlagsMenu.SubMenu.Developer", Who)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeLine("MainFrame.OpenProject",
				SNew(SButton)
				.Text(ButtonLabel)
				.OnClicked(this, &SVelmorantUserOptions::OpenDeveloperPanel))
		];
	// clang-format on
}

TSharedRef<SWidget> SVelmorantUserOptions::MakeLine(FName Icon, const TSharedRef<SWidget>& Content)
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(VelmorantUserOptions::LinePadding)
		[
			SNew(SImage)
			.Image(FAppStyle::GetBrush(Icon))
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.Padding(VelmorantUserOptions::LinePadding)
		[
			Content
		];
	// clang-format on
}

TSharedRef<SWidget> SVelmorantUserOptions::MakeText(FName Name, const FText& Text)
{
	return SNew(STextBlock).Tag(Name).Text(Text);
}

FReply SVelmorantUserOptions::OpenDeveloperPanel()
{
	// The menu is in the way of the tab, and what it shows of the user is about to change.
	FSlateApplication::Get().DismissAllMenus();
	VelmorantToolLaunchers::OpenDeveloperPanel();
	return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
