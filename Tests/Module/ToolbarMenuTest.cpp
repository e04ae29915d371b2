// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "Framework/Commands/InputBindingManager.h"
#include "HostClipboard.h"
#include "HostMenus.h"
#include "HostPackages.h"
#include "HostProcess.h"
#include "HostSettings.h"
#include "HostSlate.h"
#include "HostSnapshot.h"
#include "HostTabs.h"
#include "HostToolMenus.h"
#include "ToolMenus.h"
#include "ToolbarHost.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProEditor.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantSDKSettings.h"
#include "WidgetSearch.h"
#include "Widgets/Text/STextBlock.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class ToolbarMenu : public FToolkitTest
{
protected:
	/** Opens the menu as a click on its button does. */
	void Open()
	{
		FString Reason;
		ASSERT_TRUE(Toolbar.OpenMenu(TEXT("VelmorantMenu"), Reason).IsValid()) << ToUtf8(Reason);
	}

	bool IsOpen() const { return Toolbar.FindOpenMenu(TEXT("VelmorantMenu")).IsValid(); }
	TSharedRef<SWidget> GetMenu() const { return Toolbar.FindOpenMenu(TEXT("VelmorantMenu")).ToSharedRef(); }

	std::string ReadMenu()
	{
		Open();
		return ToUtf8(HostSnapshot::Take(GetMenu()));
	}

	/** Opens the menu and clicks. Returns why not, or nothing. */
	std::string Choose(const TCHAR* Label)
	{
		Open();
		return ToUtf8(HostSnapshot::Click(GetMenu(), Label).Reason);
	}

	/** The texts of an entry of the open menu, for their keys. */
	TSharedPtr<SHostMenuEntry> FindEntry(const TCHAR* Name) const
	{
		FString Reason;
		return StaticCastSharedPtr<SHostMenuEntry>(HostSnapshot::Find(GetMenu(), Name, Reason));
	}

	/** Keys of the texts above the entries of the open menu; nothing for what is not translated. */
	std::vector<std::string> KeysOfTexts() const
	{
		std::vector<std::string> Keys;
		for (const STextBlock* Text : AllWidgets<STextBlock>(*GetMenu()))
		{
			Keys.push_back(ToUtf8(FTextInspector::GetKey(Text->GetText()).Get(FString())));
		}
		return Keys;
	}

	/** What the launchers have told so far. */
	static std::vector<std::string> TellingsOfLaunches() { return ToUtf8(LogOf(TEXT("LogTemp"))); }

	/** The toolkit with content of the test's own, for the launchers to trip over. */
	void UseOtherToolkit(const char* VersionMember = R"("VersionName": "7.8 beta", )") const
	{
		Folder.Write("Plugins/VelmorantPro/VelmorantPro.uplugin",
			std::string(R"({"FileVersion": 3, )") + VersionMember + R"("CanContainContent": true, "Modules": [{"Name": "VelmorantProEditor", "Type": "Editor", "LoadingPhase": "Default"}]})");
		Folder.Write("Plugins/VelmorantSDK/VelmorantSDK.uplugin", R"({"FileVersion": 3, "VersionName": "1.0"})");
	}

	static inline const char* const UnitVolumeTools = "Plugins/VelmorantPro/Content/EditorHelpers/ToolsWidget/UnitVolumeTools/VelmorantEditorTool_StaticMeshToUnitVolume.uasset.json";

	FToolbarHost Toolbar; // goes before the editor does
};

TEST_F(ToolbarMenu, HangsOnALabelledButtonOfThePlayToolbar)
{
	StartEditor();
	EXPECT_EQ(ToUtf8(HostSnapshot::Take(Toolbar.GetContent())),
		"toolbar LevelEditor.LevelEditorToolBar.PlayToolBar\n"
		"  section PluginTools\n"
		"    menu button VelmorantMenu [Velmorant] (icon: Velmorant.Editor.LogoRamp, tip: Tools for Velmorant)\n");

	const FToolMenuEntry* Button = UToolMenus::Get()->FindMenu("LevelEditor.LevelEditorToolBar.PlayToolBar")->FindSection("PluginTools")->FindEntry("VelmorantMenu");
	ASSERT_NE(Button, nullptr);
	EXPECT_EQ(ToUtf8(Button->StyleNameOverride), "CalloutToolbar");
	EXPECT_EQ(ToUtf8(*FTextInspector::GetNamespace(Button->Label.Get())), "FVelmorantProEditor");
	EXPECT_EQ(ToUtf8(*FTextInspector::GetKey(Button->Label.Get())), "VelmorantMenu_Label");
	EXPECT_EQ(ToUtf8(*FTextInspector::GetKey(Button->ToolTip.Get())), "VelmorantMenu_Tooltip");
	ASSERT_TRUE(Button->CommandList.IsValid());
	const auto IsMapped = [Button](FName Command) { return Button->CommandList->IsActionMapped(FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", Command)); };
	EXPECT_TRUE(IsMapped("VelmorantSDK_OpenSDKSettings"));
	EXPECT_FALSE(IsMapped("VelmorantCommand_OpenMenu")) << "it stands for the menu, and does nothing by itself";
}

TEST_F(ToolbarMenu, ShowsFourSectionsInOrder)
{
	StartEditor();
	EXPECT_EQ(ReadMenu(),
		"menu\n"
		"  section VelmorantUserOptions [Velmorant User Options]\n"
		"    vertical\n"
		"      horizontal\n"
		"        image (ShowFlagsMenu.SubMenu.Developer)\n"
		"        text UserName \"Developer not registered\"\n"
		"      horizontal\n"
		"        image (MainFrame.OpenProject)\n"
		"        button [Login]\n"
		"  section VelmorantTools [Velmorant Tools]\n"
		"    entry UnitVolumeTools [Unit Volume Tools] (icon: Icons.MakeStaticMesh, tip: Open the tool to convert StaticMesh to UnitVolume)\n"
		"  section VelmorantSettings [Velmorant Settings]\n"
		"    entry VelmorantPro_OpenProSettings [Velmorant Pro Settings] (icon: Icons.Settings, tip: Open Velmorant Pro Settings panel)\n"
		"    entry VelmorantPro_OpenProUISettings [Velmorant Pro UI Settings] (icon: Icons.Settings, tip: Open Velmorant Pro UI Settings panel)\n"
		"    entry VelmorantSDK_OpenSDKSettings [Velmorant SDK Settings] (icon: Icons.Settings, tip: Open Velmorant SDK Settings panel)\n"
		"  section VelmorantAbout [About Velmorant]\n"
		"    entry OpenSupportPage [Support Ticket] (icon: Icons.Help, tip: Go to the Velmorant Support Portal to create a ticket)\n"
		"    entry OpenDocPage [Plugin Documentation] (icon: Icons.Documentation, tip: Go to the Velmorant Documentation)\n"
		"    entry VelmorantVersion [Velmorant Version: " +
			ToUtf8(UVelmorantEditorUtilitiesLibrary::GetVelmorantProVersion()) + "] (icon: Velmorant.Editor.LogoRamp, tip: Copy Velmorant version into Clipboard)\n");
}

TEST_F(ToolbarMenu, IsThereOnceInEachEditor)
{
	StartEditor();
	const std::string First = ToUtf8(HostSnapshot::Take(Toolbar.GetContent()));
	Toolbar.Close();
	StartEditor();
	EXPECT_EQ(ToUtf8(HostSnapshot::Take(Toolbar.GetContent())), First);
}

TEST_F(ToolbarMenu, WaitsUntilTheEditorsMenusAreReady)
{
	StartEditor();
	HostToolMenus::Stop(); // as while the editor comes up
	FVelmorantProEditorModule Module;
	Module.StartupModule();
	EXPECT_EQ(UToolMenus::TryGet(), nullptr) << "nobody may ask for the menus yet";
	HostToolMenus::Start();
	EXPECT_THAT(ToUtf8(HostSnapshot::Take(Toolbar.GetContent())), HasSubstr("menu button VelmorantMenu [Velmorant]"));
	Toolbar.Close();
	HostToolMenus::Stop(); // before the module, whose commands the button holds
}

TEST_F(ToolbarMenu, TellsWhoIsSignedInAtEachOpening)
{
	WriteServiceWith(R"("tokenSeconds": 60)");
	StartEditor();
	EXPECT_THAT(ReadMenu(), HasSubstr("text UserName \"Developer not registered\""));
	EXPECT_THAT(KeysOfTexts(), AllOf(Contains("DeveloperNotRegistered"), Contains("DeveloperLogin")));

	SignIn();
	const std::string SignedIn = ReadMenu();
	EXPECT_THAT(SignedIn, HasSubstr("text UserName \"Ada Byron\"\n          text UserEmail \"ada@example.com\""));
	EXPECT_THAT(SignedIn, HasSubstr("button [Developer Panel]"));
	EXPECT_THAT(SignedIn, Not(HasSubstr("Login")));
	EXPECT_THAT(SignedIn, Not(HasSubstr("sesame-77")));
	EXPECT_THAT(KeysOfTexts(), AllOf(Contains("DeveloperPanel_Label"), Not(Contains("DeveloperNotRegistered")), Not(Contains("DeveloperLogin"))));

	Wait(61.0);
	EXPECT_THAT(ReadMenu(), HasSubstr("text UserName \"Developer not registered\"")) << "the token has expired";

	SignIn();
	GetUser()->RequestUserLogout();
	EXPECT_THAT(ReadMenu(), HasSubstr("button [Login]"));
}

TEST_F(ToolbarMenu, CallsAUserWithoutANameByTheNameTheySignedInWith)
{
	WriteService(R"({"users": [{"userName": "ada", "password": "sesame-77"}]})");
	StartEditor();
	SignIn();
	EXPECT_THAT(ReadMenu(), HasSubstr("text UserName \"ada\""));
}

TEST_F(ToolbarMenu, AsksForTheDeveloperEvenBeforeAnyPanelWasOpen)
{
	StartEditor();
	ASSERT_EQ(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false), nullptr);
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(0.0);
	EXPECT_THAT(ReadMenu(), HasSubstr("text UserName \"Ada Byron\"")) << "not the running model's user, who has not signed in";
	EXPECT_EQ(UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser(), GetUser());

	Toolbar.Close();
	StartEditor();
	Open();
	EXPECT_NE(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false), nullptr) << "the menu makes the user";
}

TEST_F(ToolbarMenu, LoginLeadsToTheDeveloperPanel)
{
	StartEditor();
	EXPECT_EQ(Choose(TEXT("Login")), "");
	EXPECT_FALSE(IsOpen()) << "the menu would show an old state";
	EXPECT_EQ(ToUtf8(HostTabs::Find(TEXT("")).Label), "VelmorantDeveloperPanel");
	EXPECT_THAT(TellingsOfLaunches(), ElementsAre("Log: Editor widget launched successfully."));

	SignIn();
	EXPECT_EQ(Choose(TEXT("Developer Panel")), "");
	EXPECT_EQ(HostTabs::GetOpen().Num(), 1) << "the same tab, in front";
}

TEST_F(ToolbarMenu, OpensTheUnitVolumeTools)
{
	StartEditor();
	EXPECT_EQ(Choose(TEXT("Unit Volume Tools")), "");
	EXPECT_FALSE(IsOpen());
	EXPECT_EQ(ToUtf8(HostTabs::Find(TEXT("")).Label), "VelmorantEditorTool_StaticMeshToUnitVolume");
	EXPECT_THAT(TellingsOfLaunches(), ElementsAre("Log: Editor widget launched successfully."));
}

TEST_F(ToolbarMenu, TellsWhenAToolsLayoutIsMissingOrAnotherAssetStandsInItsPlace)
{
	UseOtherToolkit();
	Folder.Write(UnitVolumeTools, R"({"Class": "/Script/UMGEditor.WidgetBlueprint", "ParentClass": "/Script/UMG.UserWidget", "Tree": {"Class": "VerticalBox"}})");
	PluginDirs = {Folder.Get("Plugins")};
	StartEditor();
	EXPECT_EQ(Choose(TEXT("Unit Volume Tools")), "");
	EXPECT_EQ(Choose(TEXT("Login")), ""); // there is none
	EXPECT_TRUE(HostTabs::GetOpen().IsEmpty());
	EXPECT_THAT(TellingsOfLaunches(), ElementsAre("Error: Failed to load widget blueprint.", "Error: Failed to load widget blueprint."));
}

TEST_F(ToolbarMenu, TellsWhenNoTabCanBeMade)
{
	StartEditor();
	Open();
	const TSharedRef<SWidget> Menu = GetMenu();
	HostSlate::Stop(); // as if the windows were gone
	EXPECT_TRUE(HostSnapshot::Click(Menu, TEXT("Unit Volume Tools")).bDone);
	EXPECT_THAT(TellingsOfLaunches(), ElementsAre("Error: Failed to spawn and register widget tab."));
}

TEST_F(ToolbarMenu, TellsWhenTheEditorHasNoSubsystems)
{
	StartEditor();
	Open();
	UEditorEngine* const Editing = GEditor;
	GEditor = NewObject<UEditorEngine>(GetTransientPackage()); // brought up by nobody
	const FHostInputResult Result = HostSnapshot::Click(GetMenu(), TEXT("Unit Volume Tools"));
	GEditor = Editing;
	EXPECT_TRUE(Result.bDone);
	EXPECT_THAT(TellingsOfLaunches(), ElementsAre("Error: Failed to get Editor Utility Subsystem."));
}

TEST_F(ToolbarMenu, SettingsEntriesOpenThePagesOfTheCompanions)
{
	const struct
	{
		const TCHAR* Entry;
		const char* Page;
		const char* Class;
	} Cases[] = {
		{TEXT("Velmorant Pro Settings"), "Project/Plugins/VelmorantProSettings", "VelmorantProSettings"},
		{TEXT("Velmorant Pro UI Settings"), "Project/Plugins/VelmorantProUISettings", "VelmorantProUISettings"},
		{TEXT("Velmorant SDK Settings"), "Project/Plugins/VelmorantSDKSettings", "VelmorantSDKSettings"},
	};
	StartEditor();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Page);
		EXPECT_EQ(Choose(Case.Entry), "");
		EXPECT_FALSE(IsOpen());
		const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
		ASSERT_TRUE(Page.IsSet());
		EXPECT_EQ(ToUtf8(Page->Address.ToString()), Case.Page);
		EXPECT_EQ(ToUtf8(Page->Settings->GetClass()->GetName()), Case.Class);
	}
	EXPECT_TRUE(LogOf(TEXT("LogSettings")).IsEmpty());
}

TEST_F(ToolbarMenu, WhatIsChangedOnASettingsPageIsSaved)
{
	StartEditor();
	ASSERT_EQ(Choose(TEXT("Velmorant SDK Settings")), "");
	const TSharedRef<SWidget> Page = HostSettings::GetOpenPage()->Content.ToSharedRef();
	EXPECT_EQ(ToUtf8(HostSnapshot::Type(Page, TEXT("ApiKey"), TEXT("api-qv")).Reason), "");
	EXPECT_EQ(ToUtf8(GetDefault<UVelmorantSDKSettings>()->ApiKey), "api-qv");
	EXPECT_THAT(ReadProjectFile("Config/DefaultGame.ini"), HasSubstr("[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=api-qv\n"));
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty()) << "settings are no asset that waits to be saved";
}

TEST_F(ToolbarMenu, OpensTheVendorsWebPages)
{
	StartEditor();
	EXPECT_EQ(Choose(TEXT("Plugin Documentation")), "");
	EXPECT_EQ(Choose(TEXT("Support Ticket")), "");
	const TArray<FString>& Pages = HostProcess::GetOpenedUrls();
	ASSERT_EQ(Pages.Num(), 2);
	EXPECT_EQ(ToUtf8(Pages[0]).rfind("https://", 0), 0u) << ToUtf8(Pages[0]);
	EXPECT_EQ(ToUtf8(Pages[1]).rfind("https://", 0), 0u) << ToUtf8(Pages[1]);
	EXPECT_NE(ToUtf8(Pages[0]), ToUtf8(Pages[1]));
	EXPECT_THAT(ToUtf8(Pages[0]), HasSubstr("docs"));
	EXPECT_THAT(ToUtf8(Pages[1]), HasSubstr("support"));
}

TEST_F(ToolbarMenu, TheVersionEntryCopiesTheVersion)
{
	UseOtherToolkit();
	PluginDirs = {Folder.Get("Plugins")};
	StartEditor();
	EXPECT_EQ(Choose(TEXT("Velmorant Version: 7.8 beta")), "");
	ASSERT_FALSE(HostClipboard::GetHistory().IsEmpty());
	EXPECT_EQ(ToUtf8(HostClipboard::GetHistory().Last()), "7.8 beta");
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Velmorant version 7.8 beta copied to clipboard.", "", SNotificationItem::CS_Success, 4.0f}));
}

TEST_F(ToolbarMenu, AToolkitWithoutAVersionShowsTheTextThatSharesTheKey)
{
	UseOtherToolkit("");
	PluginDirs = {Folder.Get("Plugins")};
	StartEditor();
	EXPECT_THAT(ReadMenu(), HasSubstr("entry VelmorantVersion [Velmorant Version] ("));
	EXPECT_EQ(ToUtf8(*FTextInspector::GetKey(FindEntry(TEXT("VelmorantVersion"))->GetLabel())), "VelmorantVersion");
}

TEST_F(ToolbarMenu, ItsEntriesAreTranslatedUnderTheirKeys)
{
	const struct
	{
		const TCHAR* Name;
		const char* Label;
		const char* ToolTip;
	} Cases[] = {
		{TEXT("UnitVolumeTools"), "UnitVolumeTools_Label", "UnitVolumeTools_Tooltip"},
		{TEXT("OpenSupportPage"), "OpenSupportPage_Label", "OpenSupportPage_Tooltip"},
		{TEXT("OpenDocPage"), "OpenDocPage_Label", "OpenDocPage_Tooltip"},
		{TEXT("VelmorantVersion"), "", "OpenDocPage_Tooltip"}, // the label is put together, the tool tip's key is shared
	};
	StartEditor();
	Open();
	for (const auto& Case : Cases)
	{
		const TSharedPtr<SHostMenuEntry> Entry = FindEntry(Case.Name);
		EXPECT_EQ(ToUtf8(*FTextInspector::GetNamespace(Entry->GetToolTip())), "FVelmorantProEditor");
		EXPECT_EQ(ToUtf8(FTextInspector::GetKey(Entry->GetLabel()).Get(FString())), Case.Label);
		EXPECT_EQ(ToUtf8(*FTextInspector::GetKey(Entry->GetToolTip())), Case.ToolTip);
	}
}
