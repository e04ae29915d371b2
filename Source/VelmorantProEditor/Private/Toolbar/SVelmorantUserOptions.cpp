// Copyright Velmorant. All Rights Reserved.

#include "Toolbar/SVelmorantUserOptions.h"

#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantUserOptions
{
	const FMargin LinePadding(4.0f, 2.0f); // Slate units
}

void SVelmorantUserOptions::Construct(const FArguments& InArgs)
{
	const TOptional<FUser>& User = InArgs._User;

	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeLine("ShowFlagsMenu.SubMenu.Developer",
				User.IsSet() ? MakeUser(*User) : MakeText("UserName", LOCTEXT("DeveloperNotRegistered", "Developer not registered")))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeLine("MainFrame.OpenProject",
				SNew(SButton)
				.Text(User.IsSet() ? LOCTEXT("DeveloperPanel_Label", "Developer Panel") : LOCTEXT("DeveloperLogin", "Login"))
				.OnClicked(InArgs._OnOpenDeveloperPanel))
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SVelmorantUserOptions::MakeUser(const FUser& User)
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeText("UserName", FText::FromString(User.Name))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeText("UserEmail", FText::FromString(User.Email))
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

#undef LOCTEXT_NAMESPACE
