// Copyright Velmorant. All Rights Reserved.

#include "Toolbar/VelmorantMenu.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/SlateDelegates.h"
#include "Styling/AppStyle.h"
#include "Textures/SlateIcon.h"
#include "Toolbar/SVelmorantUserOptions.h"
#include "Toolbar/VelmorantToolLaunchers.h"
#include "ToolMenus.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProEdCommands.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantUser.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantMenu
{
	FSlateIcon LogoIcon()
	{
		return FSlateIcon(FVelmorantEditorStyle::GetStyleSetName(), "Velmorant.Editor.LogoRamp");
	}

	FSlateIcon EditorIcon(const FName Name)
	{
		return FSlateIcon(FAppStyle::GetAppStyleSetName(), Name);
	}

	/** The name they signed in with stands for the one that the service did not give. */
	FString GetDisplayName(const UVelmorantUser& User)
	{
		const FLoginInfo Login = User.GetUserLoginInfo();
		const FString FullName = (Login.FirstName + TEXT(" ") + Login.LastName).TrimStartAndEnd();
		return FullName.IsEmpty() ? User.GetUserInfo().UserName : FullName;
	}

	/** Who is signed in at this moment. */
	TOptional<SVelmorantUserOptions::FUser> FindUser()
	{
		UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
		UVelmorantSDKEngineSubsystem* Subsystem = UVelmorantSDKEngineSubsystem::Get();
		const UVelmorantUser* User = Subsystem ? Subsystem->GetVelmorantUser() : nullptr;
		if (!User || !User->HasValidToken())
		{
			return {};
		}
		return SVelmorantUserOptions::FUser{GetDisplayName(*User), User->GetUserLoginInfo().Email};
	}

	FReply OpenDeveloperPanel()
	{
		// The menu is in the way of the tab, and what it shows of the user is about to change.
		FSlateApplication::Get().DismissAllMenus();
		VelmorantToolLaunchers::OpenDeveloperPanel();
		return FReply::Handled();
	}

	void AddUserOptions(FMenuBuilder& Menu)
	{
		const TSharedRef<SWidget> Options = SNew(SVelmorantUserOptions)
												.User(FindUser())
												.OnOpenDeveloperPanel_Static(&OpenDeveloperPanel);

		Menu.BeginSection("VelmorantUserOptions", LOCTEXT("VelmorantUserOptions_Label", "Velmorant User Options"));
		Menu.AddWidget(Options, FText::GetEmpty(), true);
		Menu.EndSection();
	}

	void AddTools(FMenuBuilder& Menu)
	{
		Menu.BeginSection("VelmorantTools", LOCTEXT("VelmorantTools_Label", "Velmorant Tools"));
		Menu.AddMenuEntry(
			LOCTEXT("UnitVolumeTools_Label", "Unit Volume Tools"),
			LOCTEXT("UnitVolumeTools_Tooltip", "Open the tool to convert StaticMesh to UnitVolume"),
			EditorIcon("Icons.MakeStaticMesh"),
			FUIAction(FExecuteAction::CreateStatic(&VelmorantToolLaunchers::OpenUnitVolumeTools)),
			"UnitVolumeTools");
		Menu.EndSection();
	}

	void AddSettings(FMenuBuilder& Menu)
	{
		const FVelmorantProEdCommands& Commands = FVelmorantProEdCommands::Get();
		Menu.BeginSection("VelmorantSettings", LOCTEXT("VelmorantSettings_Label", "Velmorant Settings"));
		for (const TSharedPtr<FUICommandInfo>& Command : {Commands.VelmorantPro_OpenProSettings, Commands.VelmorantPro_OpenProUISettings, Commands.VelmorantSDK_OpenSDKSettings})
		{
			Menu.AddMenuEntry(Command, NAME_None, TAttribute<FText>(), TAttribute<FText>(), EditorIcon("Icons.Settings"));
		}
		Menu.EndSection();
	}

	/** Shared keys on purpose: both labels have one key, and the tool tip has that of the documentation entry's. Each text shows its own source. */
	void AddVersion(FMenuBuilder& Menu)
	{
		const FString Version = UVelmorantEditorUtilitiesLibrary::GetVelmorantProVersion();
		const FText Label = Version.IsEmpty()
			? LOCTEXT("VelmorantVersion", "Velmorant Version") // a development build whose descriptor names none
			: FText::Format(LOCTEXT("VelmorantVersion", "Velmorant Version: {0}"), FText::FromString(Version));
		Menu.AddMenuEntry(
			Label,
			LOCTEXT("OpenDocPage_Tooltip", "Copy Velmorant version into Clipboard"),
			LogoIcon(),
			FUIAction(FExecuteAction::CreateLambda([Version] { UVelmorantEditorUtilitiesLibrary::CopyVersionToClipboard(Version); })),
			"VelmorantVersion");
	}

	void AddAbout(FMenuBuilder& Menu)
	{
		Menu.BeginSection("VelmorantAbout", LOCTEXT("VelmorantAbout_Label", "About Velmorant"));
		Menu.AddMenuEntry(
			LOCTEXT("OpenSupportPage_Label", "Support Ticket"),
			LOCTEXT("OpenSupportPage_Tooltip", "Go to the Velmorant Support Portal to create a ticket"),
			EditorIcon("Icons.Help"),
			FUIAction(FExecuteAction::CreateStatic(&VelmorantToolLaunchers::OpenSupportPage)),
			"OpenSupportPage");
		Menu.AddMenuEntry(
			LOCTEXT("OpenDocPage_Label", "Plugin Documentation"),
			LOCTEXT("OpenDocPage_Tooltip", "Go to the Velmorant Documentation"),
			EditorIcon("Icons.Documentation"),
			FUIAction(FExecuteAction::CreateStatic(&VelmorantToolLaunchers::OpenDocumentationPage)),
			"OpenDocPage");
		AddVersion(Menu);
		Menu.EndSection();
	}
}

void VelmorantMenu::AddToToolbar(const TSharedRef<FUICommandList>& Commands)
{
	FToolMenuEntry Button = FToolMenuEntry::InitComboButton(
		"VelmorantMenu",
		FUIAction(),
		FOnGetContent::CreateStatic(&VelmorantMenu::MakeContent, Commands),
		LOCTEXT("VelmorantMenu_Label", "Velmorant"),
		LOCTEXT("VelmorantMenu_Tooltip", "Tools for Velmorant"),
		LogoIcon());
	Button.StyleNameOverride = "CalloutToolbar"; // shows the label beside the icon
	Button.SetCommandList(Commands);

	UToolMenu* Toolbar = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar.PlayToolBar");
	Toolbar->FindOrAddSection("PluginTools").AddEntry(Button);
}

TSharedRef<SWidget> VelmorantMenu::MakeContent(TSharedRef<FUICommandList> Commands)
{
	FMenuBuilder Menu(true, Commands);
	AddUserOptions(Menu);
	AddTools(Menu);
	AddSettings(Menu);
	AddAbout(Menu);
	return Menu.MakeWidget();
}

#undef LOCTEXT_NAMESPACE
