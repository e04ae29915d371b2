// Copyright Velmorant. All Rights Reserved.

#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/SizeBox.h"
#include "EditorWidgets/VlmEWProjectSelector.h"
#include "HostAssertions.h"
#include "HostClipboard.h"
#include "HostProblems.h"
#include "PanelLayouts.h"
#include "ProjectWrapper.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VlmText.h"

#include <filesystem>
#include <set>

using namespace SelectorEvents;
using testing::ElementsAre;
using testing::IsEmpty;

namespace ProjectSelectorTest
{
	const char* const GameIni = "Config/DefaultGame.ini";

	std::string ApiKeyIni(const char* ApiKey)
	{
		return std::string("[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=") + ApiKey + "\n";
	}
}

using namespace ProjectSelectorTest;

class ProjectSelector : public FToolkitTest
{
protected:
	ProjectSelector() { WriteProjectFile(GameIni, ApiKeyIni("no project's")); }

	/** A panel on screen, activated, with ada's projects in it. */
	FTestPanel MakeFilledPanel()
	{
		FTestPanel Panel = MakePanel();
		Activate(Panel);
		Wait(0.0);
		Panel.TakeEvents();
		return Panel;
	}

	/** A panel on screen, of a user who has signed in. */
	FTestPanel MakePanel()
	{
		StartEditor();
		SignIn();
		return ShowPanel();
	}

	static FTestPanel ShowPanel()
	{
		FTestPanel Panel(PanelLayouts::ProjectSelector, {TEXT("OnRequestingUserProjectsProcess")});
		Panel.Show();
		return Panel;
	}

	static void Activate(const FTestPanel& Panel) { IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get()); }

	static std::string SelectedKeyCode(const FTestPanel& Panel) { return ToUtf8(Panel.Get<UVlmEWProjectSelector>()->GetSelectedProject().KeyCode); }

	/** Key code of the project that the developer user has selected. */
	static std::string UsersKeyCode() { return GetRequests()->GetProjectWrapper() ? ToUtf8(GetRequests()->GetProjectWrapper()->GetProjectData().KeyCode) : "none"; }

	static int32 NumCopied() { return HostClipboard::GetHistory().Num(); }
};

TEST_F(ProjectSelector, ListsTheProjectsThatTheServiceSends)
{
	FTestPanel Panel = MakePanel();
	Activate(Panel);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Busy));
	Wait(0.0);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Idle));
	EXPECT_THAT(Panel.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Harbor Tower", "Quay View"));
	EXPECT_EQ(Panel.Read(TEXT("ProjectSelection")), "No Selection");
	EXPECT_EQ(UsersKeyCode(), "none");
}

TEST_F(ProjectSelector, ShowsTheProjectsInAListThatIsOpenAlready)
{
	FTestPanel Panel = MakePanel();
	Activate(Panel);
	Panel.Click(TEXT("ProjectSelection"));
	EXPECT_THAT(Panel.Options(TEXT("ProjectSelection")), IsEmpty());
	Wait(0.0);
	EXPECT_THAT(Panel.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Harbor Tower", "Quay View"));
}

TEST_F(ProjectSelector, DoesNothingWithoutAUser)
{
	StartEditor();
	FTestPanel Panel = ShowPanel();
	Activate(Panel);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_EQ(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false), nullptr) << "and makes none";
	EXPECT_THROW(Panel.Get<UVlmEWProjectSelector>()->RequestEditorUserProjects(), FHostAssertionFailure);
}

TEST_F(ProjectSelector, PreselectsTheProjectOfTheDefaultKey)
{
	const struct
	{
		const char* Behaviour;
		const char* DefaultKey;
		const char* Selected;
	} Cases[] = {
		{"the same key", "api-ht", "Harbor Tower"},
		{"letter case does not count", "API-ht", "Harbor Tower"},
		{"no default key fits a project without key", "", "Quay View"},
		{"another key", "api-h", "No Selection"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteProjectFile(GameIni, ApiKeyIni(Case.DefaultKey));
		FTestPanel Panel = MakeFilledPanel();
		EXPECT_EQ(Panel.Read(TEXT("ProjectSelection")), Case.Selected);
		const bool bSelected = std::string(Case.Selected) != "No Selection";
		EXPECT_EQ(Panel.Read(TEXT("ProjectName")), bSelected ? Case.Selected : "");
		EXPECT_EQ(UsersKeyCode() != "none", bSelected);
	}
}

TEST_F(ProjectSelector, TakesNamesAndKeyCodesLongerThanAnyName)
{
	FTestPanel Panel = MakePanel();
	Activate(Panel);
	Wait(0.0);
	FProject Long;
	Long.ProjectName = FString::ChrN(NAME_SIZE + 100, TEXT('n'));
	Long.KeyCode = FString::ChrN(NAME_SIZE + 100, TEXT('k'));
	GetUser()->GetOnProjectsResponse().Broadcast(true, {Long});
	Panel.Choose(TEXT("ProjectSelection"), *Long.ProjectName);
	EXPECT_EQ(SelectedKeyCode(Panel), ToUtf8(Long.KeyCode));
	EXPECT_EQ(ToUtf8(Panel.Get<UVlmEWProjectSelector>()->GetProjectByKeyCode(FName(*Long.KeyCode.Left(NAME_SIZE - 1))).ProjectName), ToUtf8(Long.ProjectName));
}

TEST_F(ProjectSelector, MakesTheChosenProjectTheUsersOwn)
{
	FTestPanel Panel = MakeFilledPanel();
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	EXPECT_EQ(Panel.Read(TEXT("ProjectKeyCode")), "QV");
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "Quay View");
	EXPECT_TRUE(Panel.Find<UEditableText>(TEXT("ProjectKeyCode"))->GetIsReadOnly());
	EXPECT_TRUE(Panel.Find<UEditableText>(TEXT("ProjectName"))->GetIsReadOnly());
	EXPECT_EQ(SelectedKeyCode(Panel), "QV");
	EXPECT_EQ(UsersKeyCode(), "QV");
}

TEST_F(ProjectSelector, NoSelectionEmptiesTheFieldsAndTellsNobody)
{
	FTestPanel Panel = MakeFilledPanel();
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	Panel.Choose(TEXT("ProjectSelection"), TEXT("No Selection"));
	EXPECT_EQ(Panel.Read(TEXT("ProjectKeyCode")), "");
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "");
	EXPECT_EQ(SelectedKeyCode(Panel), "");
	EXPECT_EQ(UsersKeyCode(), "HT");
}

TEST_F(ProjectSelector, AnEmptyChoiceIsNone)
{
	FTestPanel Panel = MakeFilledPanel();
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	Panel.Find<UComboBoxString>(TEXT("ProjectSelection"))->ClearSelection(); // raises an empty selection
	EXPECT_EQ(SelectedKeyCode(Panel), "HT");
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "Harbor Tower");
}

TEST_F(ProjectSelector, OfTwoProjectsWithOneNameTheFirstIsMeant)
{
	WriteService(R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["A", "B"]}], "projects": [{"keyCode": "A", "apiKey": "key-a", "name": "Twin"}, {"keyCode": "B", "apiKey": "key-b", "name": "TWIN"}]})");
	WriteProjectFile(GameIni, ApiKeyIni("key-b"));
	FTestPanel Panel = MakeFilledPanel();
	EXPECT_EQ(SelectedKeyCode(Panel), "A");
	Panel.Choose(TEXT("ProjectSelection"), TEXT("TWIN"));
	EXPECT_EQ(SelectedKeyCode(Panel), "A");
}

TEST_F(ProjectSelector, OfSeveralProjectsWithOneKeyTheFirstIsMeant)
{
	WriteProjectFile(GameIni, ApiKeyIni("key-b"));
	FTestPanel Panel = MakeFilledPanel();
	TArray<FProject> Projects;
	for (const TCHAR* Name : {TEXT("Other"), TEXT("First"), TEXT("Second")})
	{
		FProject& Project = Projects.AddDefaulted_GetRef();
		Project.ProjectName = Name;
		Project.KeyCode = Projects.Num() == 1 ? TEXT("A") : TEXT("B");
		Project.ApiKey = Projects.Num() == 1 ? TEXT("key-a") : TEXT("key-b");
	}
	GetUser()->GetOnProjectsResponse().Broadcast(true, Projects);
	EXPECT_EQ(Panel.Read(TEXT("ProjectSelection")), "First");
	EXPECT_EQ(ToUtf8(Panel.Get<UVlmEWProjectSelector>()->GetProjectByKeyCode("b").ProjectName), "First");
}

TEST_F(ProjectSelector, FindsProjectsByKeyCode)
{
	FTestPanel Panel = MakeFilledPanel();
	EXPECT_EQ(ToUtf8(Panel.Get<UVlmEWProjectSelector>()->GetProjectByKeyCode("qv").ProjectName), "Quay View");
	EXPECT_FALSE(Panel.Get<UVlmEWProjectSelector>()->GetProjectByKeyCode("Quay View").IsValidProject());
}

TEST_F(ProjectSelector, ShowsACachedListWithoutARequest)
{
	MakeFilledPanel();
	WriteService("gone");
	FTestPanel Panel = ShowPanel();
	Activate(Panel);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Idle));
	EXPECT_EQ(Panel.Options(TEXT("ProjectSelection")).size(), 3u);
	Wait(1.0);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
}

TEST_F(ProjectSelector, KeepsTheOldListWhenARequestFails)
{
	const struct
	{
		const char* Behaviour;
		std::string Service;
	} Cases[] = {
		{"failing request", R"({"users": [{"userName": "ada", "password": "sesame-77"}], "failingRequests": ["projects"]})"},
		{"the user is gone", R"({})"},
		{"broken data", "{"},
	};
	FTestPanel Panel = MakeFilledPanel();
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteService(Case.Service);
		Panel.Get<UVlmEWProjectSelector>()->RequestEditorUserProjects();
		EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Busy));
		Wait(0.0);
		EXPECT_THAT(Panel.TakeEvents(), testing::AllOf(testing::Not(IsEmpty()), testing::Each(Idle)));
		EXPECT_EQ(Panel.Options(TEXT("ProjectSelection")).size(), 3u);
		EXPECT_EQ(SelectedKeyCode(Panel), "QV");
	}
}

TEST_F(ProjectSelector, HearsEveryAnswerOncePerRequestMade)
{
	FTestPanel Panel = MakePanel();
	Panel.Get<UVlmEWProjectSelector>()->RequestEditorUserProjects();
	Wait(0.0);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Busy, Idle));
	Panel.Get<UVlmEWProjectSelector>()->RequestEditorUserProjects();
	Wait(0.0);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre(Busy, Idle, Idle));
}

TEST_F(ProjectSelector, CopiesTheKeyOfTheSelectedProject)
{
	FTestPanel Panel = MakeFilledPanel();
	Panel.Hide(); // shown again, a click still counts once
	Panel.Show();
	Panel.Click(TEXT("CopyApyKey"));
	EXPECT_EQ(NumCopied(), 0) << "nothing is selected";

	Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	Panel.Click(TEXT("CopyApyKey"));
	ASSERT_EQ(NumCopied(), 1);
	EXPECT_EQ(ToUtf8(HostClipboard::GetHistory().Last()), "api-ht");

	Panel.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	Panel.Click(TEXT("CopyApyKey"));
	ASSERT_EQ(NumCopied(), 2);
	EXPECT_EQ(ToUtf8(HostClipboard::GetHistory().Last()), "") << "a project without key";
}

TEST_F(ProjectSelector, WritesTheDefaultKeyAndNothingElseIntoTheProject)
{
	const std::string Before = "; by hand\r\n[/Script/EngineSettings.GeneralProjectSettings]\r\nProjectName=Harbor Tower\r\n\r\n[/Script/VelmorantSDK.VelmorantSDKSettings]\r\nApiKey=old\r\nServiceDataFile=\r\nRequestTimeoutSeconds=30.000000\r\n[Other]\r\n+A=1\r\n+A=1\r\n";
	WriteProjectFile(GameIni, Before);
	FTestPanel Panel = MakeFilledPanel();
	TakeModuleLog();
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	Panel.Click(TEXT("SetAsDefault"));
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Log: UserProjects Apikey set new"));
	std::string Expected = Before;
	Expected.replace(Expected.find("ApiKey=old"), 10, "ApiKey=api-ht");
	EXPECT_EQ(ReadProjectFile(GameIni), Expected);
	EXPECT_EQ(HostProblems::GetAll().Num(), 0);
	std::set<std::string> Files;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative()))
	{
		const std::string Relative = std::filesystem::relative(Entry.path(), Folder.GetNative()).string();
		if (Entry.is_regular_file() && Folder.Read(Relative).find("ApiKey=api-ht") != std::string::npos)
		{
			Files.insert(Relative);
		}
	}
	EXPECT_THAT(Files, ElementsAre("Project/Config/DefaultGame.ini", "Project/Saved/Config/LinuxEditor/Game.ini"));

	FTestPanel Next = MakeFilledPanel();
	EXPECT_EQ(Next.Read(TEXT("ProjectSelection")), "Harbor Tower") << "in the next editor";
}

TEST_F(ProjectSelector, RefusesADefaultProjectWithoutKey)
{
	FTestPanel Panel = MakeFilledPanel();
	TakeModuleLog();
	Panel.Click(TEXT("SetAsDefault"));
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	Panel.Click(TEXT("SetAsDefault"));
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Error: UVlmEWProjectSelector: Invalid ApiKey to Apply", "Error: UVlmEWProjectSelector: Invalid ApiKey to Apply"));
	EXPECT_EQ(ReadProjectFile(GameIni), ApiKeyIni("no project's"));
}

TEST_F(ProjectSelector, ADefaultKeyThatCannotBeWrittenIsAProblemOfTheHost)
{
	FTestPanel Panel = MakeFilledPanel();
	TakeModuleLog();
	std::filesystem::permissions(Folder.GetNative("Project/Config/DefaultGame.ini"), std::filesystem::perms::owner_read);
	Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	Panel.Click(TEXT("SetAsDefault"));
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Log: UserProjects Apikey set new")) << "the panel tells success whatever happened";
	EXPECT_EQ(ReadProjectFile(GameIni), ApiKeyIni("no project's"));
	ASSERT_EQ(HostProblems::GetAll().Num(), 1);
	EXPECT_THAT(ToUtf8(HostProblems::GetAll()[0].File), testing::EndsWith("Config/DefaultGame.ini"));
}

TEST_F(ProjectSelector, FetchesAProjectAnewOnlyWhenToldTo)
{
	FTestPanel Panel = MakeFilledPanel();
	int32 NumFetched = 0;
	GetRequests()->GetOnUpdateRequest().AddLambda([&NumFetched](EUpdateRequestDataType DataType, EUpdateRequestType) {
		NumFetched += DataType == EUpdateRequestDataType::ProjectData && GetRequests()->HasProjectData() ? 1 : 0;
	});
	const auto ChooseAgain = [&Panel, this] {
		Panel.Choose(TEXT("ProjectSelection"), TEXT("No Selection"));
		Panel.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
		Wait(0.0);
	};
	ChooseAgain();
	EXPECT_EQ(NumFetched, 1);
	ChooseAgain();
	EXPECT_EQ(NumFetched, 1);

	Panel.Check(TEXT("ForceUpdateCheckBox"), true);
	ChooseAgain();
	EXPECT_EQ(NumFetched, 2);
	Panel.Get<UVlmEWProjectSelector>()->SetUpdateInformationOnChange(false);
	ChooseAgain();
	EXPECT_EQ(NumFetched, 2);

	Panel.Hide(); // shown again, the panel takes the state of its check box over
	Panel.Show();
	ChooseAgain();
	EXPECT_EQ(NumFetched, 3);
}

TEST_F(ProjectSelector, MakesTheWidgetsOfItsComboBox)
{
	const FTestPanel Panel = MakeFilledPanel();
	const auto ExpectText = [](const UWidget* Widget) {
		const UVlmText* Text = Cast<UVlmText>(Widget);
		ASSERT_NE(Text, nullptr);
		EXPECT_EQ(ToUtf8(Text->GetText()), "Harbor Tower");
		EXPECT_EQ(ToUtf8(Text->GetFontStyle()), "small");
		EXPECT_EQ(ToUtf8(Text->GetColorHandler().ColorID), "Secondary");
	};

	struct
	{
		FString Item = TEXT("Harbor Tower");
		UWidget* ReturnValue = nullptr;
	} Item;
	Panel.Get()->ProcessEvent(Panel.Get()->FindFunctionChecked("GenerateComboItemWidget"), &Item);
	const USizeBox* Box = Cast<USizeBox>(Item.ReturnValue);
	ASSERT_NE(Box, nullptr);
	EXPECT_EQ(Box->GetMinDesiredHeight(), 10.0f);
	ExpectText(Box->GetContent());

	struct
	{
		FName Item = TEXT("Harbor Tower");
		UWidget* ReturnValue = nullptr;
	} Content;
	Panel.Get()->ProcessEvent(Panel.Get()->FindFunctionChecked("GenerateComboContentWidget"), &Content);
	ExpectText(Content.ReturnValue);
}
