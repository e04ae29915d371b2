// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWDevInfo.h"
#include "EditorWidgets/VlmEWListDisplayer.h"
#include "EditorWidgets/VlmEWLoginUser.h"
#include "EditorWidgets/VlmEWMinimapTool.h"
#include "EditorWidgets/VlmEWProjectSelector.h"
#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"
#include "FileBytes.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "UObject/UnrealType.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"

#include <filesystem>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace DeveloperPanelTest
{
	/** Ada has Harbor Tower with two towers and Quay View with a pier, and a picture; Eve has a garden and none. Members go first. */
	std::string TwoAccounts(const std::string& Members = "")
	{
		return "{" + Members + R"(
			"users": [
				{"userName": "ada", "password": "sesame-77", "firstName": "Ada", "lastName": "Byron", "email": "ada@example.com", "picture": "Ada.png", "projects": ["HT", "QV"]},
				{"userName": "eve", "password": "sesame-78", "firstName": "Eve", "projects": ["EV"]}],
			"projects": [
				{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower",
					"unitGroups": [
						{"keyCode": "HT-A", "name": "Alba", "units": [{"keyCode": "A-2", "name": "Second", "unitID": 20}, {"keyCode": "A-1", "name": "First", "unitID": 10}]},
						{"keyCode": "HT-B", "name": "Brisa", "units": [{"keyCode": "B-1", "name": "Only", "unitID": 5}]}],
					"configurators": [{"name": "Flat", "unitGroups": ["HT-B"]}, {"name": "Loft", "unitGroups": ["HT-A", "HT-B"]}]},
				{"keyCode": "QV", "apiKey": "api-qv", "name": "Quay View", "unitGroups": [{"keyCode": "QV-P", "name": "Pier", "units": []}]},
				{"keyCode": "EV", "name": "Eve's Garden", "unitGroups": []}]})";
	}

	/** The first bytes of a picture of one by one pixel: its size is all that is read. */
	const std::string Picture = std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\6\0\0\0", 29);
}

using namespace DeveloperPanelTest;

/** The developer's tab as the toolkit lays it out, and what the service does to it. */
class DeveloperPanel : public FToolkitTest
{
protected:
	DeveloperPanel()
	{
		WriteProjectFile("Ada.png", Picture);
		WriteService(TwoAccounts());
	}

	static FTestTab Open() { return FTestTab(TEXT("/VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel")); }

	/** The tab of a new editor, with ada signed in through it and her projects listed. */
	FTestTab OpenAndSignIn()
	{
		StartEditor();
		FTestTab Tab = Open();
		SignIn(Tab);
		return Tab;
	}

	/** The same, with Harbor Tower chosen and its data there. */
	FTestTab OpenHarborTower()
	{
		FTestTab Tab = OpenAndSignIn();
		Tab.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
		Wait(0.0);
		return Tab;
	}

	static void Click(FTestTab& Tab, const TCHAR* UserName, const TCHAR* Password)
	{
		Tab.Type(TEXT("UserName"), UserName);
		Tab.Type(TEXT("UserPassword"), Password);
		Tab.Click(TEXT("SummitButton"));
	}

	/** Two answers: the login's and the projects'. */
	void SignIn(FTestTab& Tab, const TCHAR* UserName = TEXT("ada"), const TCHAR* Password = TEXT("sesame-77"))
	{
		Click(Tab, UserName, Password);
		Wait(0.0);
		Wait(0.0);
	}

	/** What a list shows, a row each. */
	std::vector<std::string> Rows(const FTestTab& Tab, const TCHAR* List = TEXT("ItemList"))
	{
		Wait(0.0);
		return Tab.Options(List);
	}

	static bool IsVisible(const FTestTab& Tab, const TCHAR* Widget) { return Tab.Look(Widget).bVisible; }
	static bool IsEnabled(const FTestTab& Tab, const TCHAR* Widget) { return Tab.Look(Widget).bEnabled; }
	static bool IsSelected(const FTestTab& Tab, const TCHAR* Widget) { return Tab.Look(Widget).bSelected; }
};

TEST_F(DeveloperPanel, SaysWhyASignInFailedAndWhatToDo)
{
	const struct
	{
		std::string Service;
		const TCHAR* Password;
		const char* Told;
	} Cases[] = {
		{TwoAccounts(), TEXT("sesame"), "The sign-in failed. Check user name and password."},
		{TwoAccounts(R"("failingRequests": ["login"],)"), TEXT("sesame-77"), "The service cannot be reached. Check the connection, then try again."},
		{"{", TEXT("sesame-77"), "The service's data cannot be used. The log says what is wrong with it: have that mended, then try again."},
		{TwoAccounts(R"("delaySeconds": 60,)"), TEXT("sesame-77"), "The service has not answered within 30 seconds. Try again later, or allow more time in the Velmorant SDK Settings."},
	};
	StartEditor();
	FTestTab Tab = Open();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Told);
		WriteService(Case.Service);
		Click(Tab, TEXT("ada"), Case.Password);
		EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Signing in…");
		Wait(30.1);
		EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), Case.Told);
		EXPECT_TRUE(IsEnabled(Tab, TEXT("SummitButton"))) << "to try again";
		EXPECT_FALSE(IsVisible(Tab, TEXT("ProjectSelection")));
	}
	WriteService(TwoAccounts());
	SignIn(Tab);
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Signed in as ada");
	Click(Tab, TEXT("eve"), TEXT("wrong"));
	Wait(0.0);
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "The sign-in failed. Check user name and password.");
	EXPECT_EQ(Tab.Read(TEXT("DevName")), "Ada Byron") << "who stays signed in";
}

TEST_F(DeveloperPanel, ASignInThatIsAnsweredAfterTheTabWasClosedShowsTheUserInTheNext)
{
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	StartEditor();
	{
		FTestTab Tab = Open();
		Click(Tab, TEXT("ada"), TEXT("sesame-77"));
	}
	FTestTab Tab = Open();
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Signing in…");
	EXPECT_FALSE(IsEnabled(Tab, TEXT("SummitButton")));
	Wait(2.1);
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Signed in as ada");
	EXPECT_EQ(Tab.Read(TEXT("DevName")), "Ada Byron");
	Wait(2.1);
	EXPECT_THAT(Tab.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Harbor Tower", "Quay View"));

	WriteService(TwoAccounts(R"("delaySeconds": 2, "failingRequests": ["login"],)"));
	{
		FTestTab Other = Open(); // the same tab
		Click(Other, TEXT("ada"), TEXT("sesame-77"));
	}
	FTestTab Last = Open();
	Wait(2.1);
	EXPECT_THAT(Last.Read(TEXT("LoginStatus")), HasSubstr("cannot be reached"));
}

TEST_F(DeveloperPanel, ASignOutLeavesNothingOfTheAccount)
{
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=api-ht\n");
	FTestTab Tab = OpenAndSignIn();
	EXPECT_EQ(Tab.Read(TEXT("ProjectName")), "Harbor Tower");
	EXPECT_EQ(Tab.Read(TEXT("DefaultKeyStatus")), "");
	EXPECT_THAT(Tab.Snapshot(), HasSubstr("image DevImage (Picture_"));
	Tab.Check(TEXT("CheckedState"), true);
	Tab.Click(TEXT("LogoutButton"));
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "");
	EXPECT_EQ(Tab.Read(TEXT("UserName")), "ada");
	EXPECT_EQ(Tab.Read(TEXT("UserPassword")), "");
	for (const TCHAR* Widget : {TEXT("DevName"), TEXT("ProjectSelection"), TEXT("ItemList")})
	{
		EXPECT_FALSE(IsVisible(Tab, Widget));
	}

	WriteService(TwoAccounts(R"("failingRequests": ["projects"],)")); // what was listed before must not stay
	SignIn(Tab, TEXT("eve"), TEXT("sesame-78"));
	EXPECT_EQ(Tab.Read(TEXT("DevName")), "Eve ");
	EXPECT_EQ(Tab.Read(TEXT("DevEmail")), "");
	EXPECT_THAT(Tab.Snapshot(), Not(HasSubstr("Picture_")));
	EXPECT_NE(Tab.Look(TEXT("CheckedState")).Checked, ECheckBoxState::Checked);
	EXPECT_THAT(Tab.Options(TEXT("ProjectSelection")), IsEmpty());
	EXPECT_EQ(Tab.Read(TEXT("ProjectName")) + Tab.Read(TEXT("ProjectKeyCode")), "");
	EXPECT_FALSE(IsEnabled(Tab, TEXT("CopyApyKey")));
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "Your projects could not be fetched. The service cannot be reached. Check the connection, then try again.");

	WriteService(TwoAccounts());
	Tab.Click(TEXT("RefreshProjects"));
	Wait(0.0);
	EXPECT_THAT(Tab.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Eve's Garden"));
	EXPECT_THAT(Tab.Read(TEXT("DefaultKeyStatus")), HasSubstr("belongs to none of these projects")) << "it is ada's";
	SignIn(Tab); // without a sign-out
	EXPECT_EQ(Tab.Read(TEXT("DevName")), "Ada Byron");
	EXPECT_EQ(Tab.Read(TEXT("DefaultKeyStatus")), "");
	EXPECT_EQ(Tab.Read(TEXT("ProjectName")), "Harbor Tower");
}

TEST_F(DeveloperPanel, ASessionThatEndsIsToldAtOnceAndTheNextGoesOnWhereItWas)
{
	WriteService(TwoAccounts(R"("tokenSeconds": 60,)"));
	FTestTab Tab = OpenHarborTower();
	Tab.Choose(TEXT("ItemList"), TEXT("Alba"));
	Tab.Click(TEXT("NavConfigurators"));
	const std::vector<std::string> Before = Rows(Tab);
	Wait(61.0);
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Your session has ended. Sign in again to go on.");
	for (const TCHAR* Widget : {TEXT("DevName"), TEXT("ProjectSelection"), TEXT("ItemList")})
	{
		EXPECT_FALSE(IsVisible(Tab, Widget)) << "as the menu has it, too";
	}
	int32 NumRequests = 0;
	GetUser()->GetOnProjectsResponse().AddLambda([&NumRequests](bool, TArray<FProject>) { ++NumRequests; });
	Tab.Click(TEXT("SummitButton")); // name and password still stand there
	Wait(0.0);
	Wait(0.0);
	EXPECT_EQ(NumRequests, 0) << "the panels were not activated again";
	EXPECT_EQ(Tab.Read(TEXT("ProjectName")), "Harbor Tower");
	EXPECT_EQ(Tab.Read(TEXT("ListTitle")), "Unit groups of the configurators");
	EXPECT_EQ(Rows(Tab), Before);
	Tab.Click(TEXT("Alba"));
	EXPECT_THAT(Rows(Tab), ElementsAre("A-1 First 10", "A-2 Second 20"));
}

TEST_F(DeveloperPanel, WhatASessionCouldNotFetchComesWithTheNext)
{
	WriteService(TwoAccounts(R"("tokenSeconds": 60,)"));
	FTestTab Tab = OpenHarborTower();
	WriteService(R"({"users": [{"userName": "eve", "password": "sesame-78"}]})"); // the service knows ada no more
	Tab.Click(TEXT("RefreshProjects"));
	Wait(0.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Your session has ended. Sign in again to go on.");
	WriteService(TwoAccounts());
	Tab.Click(TEXT("SummitButton"));
	Wait(0.0);
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "Asking for your projects…");
	Wait(0.0);
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "");
	EXPECT_EQ(Tab.Read(TEXT("ProjectSelection")), "Harbor Tower") << "the project whose data is on show";
	EXPECT_EQ(Rows(Tab).size(), 2u);
}

TEST_F(DeveloperPanel, AProjectOnItsWayShowsNothingOfTheOneBefore)
{
	FTestTab Tab = OpenHarborTower();
	EXPECT_THAT(Rows(Tab), ElementsAre("HT-A Alba", "HT-B Brisa"));
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	EXPECT_THAT(Rows(Tab), IsEmpty());
	EXPECT_EQ(Tab.Read(TEXT("ListStatus")), "Loading Quay View…");
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "");
	EXPECT_TRUE(IsVisible(Tab, TEXT("ListBusy")));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("RefreshList")));
	Wait(2.1);
	EXPECT_THAT(Rows(Tab), ElementsAre("QV-P Pier"));
	EXPECT_EQ(Tab.Read(TEXT("ListStatus")), "");
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "1 entry");
	EXPECT_FALSE(IsVisible(Tab, TEXT("ListBusy")));
}

TEST_F(DeveloperPanel, AProjectThatCouldNotBeLoadedSaysSoAndIsAskedForAgain)
{
	FTestTab Tab = OpenHarborTower();
	const std::string Failing = TwoAccounts(R"("failingRequests": ["projectData"],)");
	const std::string Told = "Quay View could not be loaded. The service cannot be reached. Check the connection, then try again.";
	for (const bool bRefresh : {false, true})
	{
		SCOPED_TRACE(bRefresh);
		Tab.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
		WriteService(Failing);
		Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
		Wait(0.0);
		EXPECT_THAT(Rows(Tab), IsEmpty());
		EXPECT_EQ(Tab.Read(TEXT("ListStatus")), Told);
		EXPECT_EQ(Tab.Read(TEXT("ListCount")), "");
		WriteService(TwoAccounts());
		if (bRefresh)
		{
			Tab.Click(TEXT("RefreshList"));
		}
		else
		{
			Tab.Choose(TEXT("ProjectSelection"), TEXT("No Selection"));
			Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
		}
		Wait(0.0);
		EXPECT_THAT(Rows(Tab), ElementsAre("QV-P Pier"));
		EXPECT_EQ(Tab.Read(TEXT("ListStatus")), "");
	}
	WriteService(Failing);
	Tab.Click(TEXT("RefreshList"));
	Wait(0.0);
	EXPECT_THAT(Rows(Tab), ElementsAre("QV-P Pier")) << "what is there stays";
	EXPECT_EQ(Tab.Read(TEXT("ListStatus")), Told);
}

TEST_F(DeveloperPanel, AFailedProjectListSaysSoBesideTheOldOne)
{
	FTestTab Tab = OpenHarborTower();
	WriteService(TwoAccounts(R"("failingRequests": ["projects"],)"));
	Tab.Click(TEXT("RefreshProjects"));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("RefreshProjects")));
	Wait(0.0);
	EXPECT_THAT(Tab.Read(TEXT("ProjectsStatus")), AllOf(HasSubstr("could not be fetched. The service cannot be reached."), Not(HasSubstr("Sign in"))));
	EXPECT_EQ(Tab.Options(TEXT("ProjectSelection")).size(), 3u);
	WriteService(TwoAccounts());
	Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	Wait(0.0);
	Tab.Click(TEXT("RefreshProjects"));
	Wait(0.0);
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "");
	EXPECT_EQ(Tab.Read(TEXT("ProjectSelection")), "Quay View") << "still chosen";
	EXPECT_THAT(Rows(Tab), ElementsAre("QV-P Pier"));
}

TEST_F(DeveloperPanel, ALateAnswerForTheAccountBeforeSaysNothingToTheNext)
{
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	StartEditor();
	FTestTab Tab = Open();
	Click(Tab, TEXT("ada"), TEXT("sesame-77"));
	Wait(2.1); // her projects are asked for
	WriteService(TwoAccounts());
	SignIn(Tab, TEXT("eve"), TEXT("sesame-78"));
	for (int32 Time = 0; Time < 2; ++Time)
	{
		EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "");
		EXPECT_THAT(Tab.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Eve's Garden"));
		EXPECT_EQ(Tab.Read(TEXT("LoginStatus")), "Signed in as eve");
		Wait(2.1);
	}
}

TEST_F(DeveloperPanel, ProjectsAreChosenByKeyCodeAndTheirKeysUsedOnlyWhenTheyHaveOne)
{
	FTestTab Tab = OpenAndSignIn();
	EXPECT_FALSE(IsEnabled(Tab, TEXT("SetAsDefault")));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("CopyApyKey")));
	Tab.Type(TEXT("FindByKeyCode"), TEXT("qv"));
	EXPECT_EQ(Tab.Read(TEXT("ProjectSelection")), "Quay View");
	EXPECT_EQ(Tab.Read(TEXT("FindByKeyCode")), "") << "committed once more later, it must not choose again";
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "");
	EXPECT_TRUE(IsEnabled(Tab, TEXT("SetAsDefault")));
	Tab.Click(TEXT("CopyApyKey"));
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "The API key of Quay View is copied");
	Tab.Click(TEXT("SetAsDefault"));
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "The API key of Quay View is the default now");
	Tab.Type(TEXT("FindByKeyCode"), TEXT("QW"));
	EXPECT_EQ(Tab.Read(TEXT("ProjectsStatus")), "None of your projects has the key code 'QW'");
	EXPECT_EQ(Tab.Read(TEXT("ProjectSelection")), "Quay View");

	SignIn(Tab, TEXT("eve"), TEXT("sesame-78"));
	Tab.Choose(TEXT("ProjectSelection"), TEXT("Eve's Garden"));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("CopyApyKey"))) << "it has no key yet";
}

TEST_F(DeveloperPanel, NoButtonOfTheListDoesNothing)
{
	FTestTab Tab = OpenHarborTower();
	for (const TCHAR* Button : {TEXT("SubSelectionButton"), TEXT("NavUnits"), TEXT("NavConfigurators"), TEXT("ClearSearch")})
	{
		EXPECT_FALSE(IsEnabled(Tab, Button)) << ToUtf8(FString(Button)) << " without a unit group or a search";
	}
	Tab.Choose(TEXT("ItemList"), TEXT("Alba"));
	EXPECT_TRUE(IsSelected(Tab, TEXT("NavUnits"))) << "the units are on show";
	const auto Configurators = ElementsAre("HT-B Brisa", "HT-A Alba", "HT-B Brisa");
	const auto Units = ElementsAre("A-1 First 10", "A-2 Second 20");
	for (int32 Time = 0; Time < 2; ++Time)
	{
		Tab.Click(TEXT("NavConfigurators"));
		EXPECT_TRUE(IsSelected(Tab, TEXT("NavConfigurators")));
		EXPECT_FALSE(IsSelected(Tab, TEXT("NavUnits")));
		EXPECT_THAT(Rows(Tab), Configurators) << "also when it is pressed already";
	}
	EXPECT_THAT(Tab.Snapshot(), HasSubstr("button NavConfigurators [Configurators] (selected)"));
	Tab.Click(TEXT("NavUnits"));
	EXPECT_THAT(Rows(Tab), Units);
	Tab.Type(TEXT("SearchText"), TEXT("sec"));
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "1 entry");
	Tab.Click(TEXT("ClearSearch"));
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "2 entries");
	EXPECT_FALSE(IsEnabled(Tab, TEXT("ClearSearch")));
	Tab.Type(TEXT("SearchText"), TEXT("nothing of the kind"));
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "No entries");

	Tab.Click(TEXT("HomeButton"));
	EXPECT_THAT(Rows(Tab), ElementsAre("HT-A Alba", "HT-B Brisa"));
	EXPECT_EQ(Tab.Read(TEXT("SearchText")), "") << "all of them show";
	EXPECT_FALSE(IsSelected(Tab, TEXT("NavUnits")));
	Tab.Click(TEXT("SubSelectionButton"));
	EXPECT_EQ(Tab.Read(TEXT("SubSelectionButton")), "Alba");
	EXPECT_THAT(Rows(Tab), Units);
	Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("SubSelectionButton"))) << "that unit group is another project's";
}

TEST_F(DeveloperPanel, TheModeConfiguratorShowsTheConfigurators)
{
	FTestTab Tab = OpenHarborTower();
	EXPECT_EQ(Tab.Read(TEXT("ModeSelector")), "Promotion");
	EXPECT_FALSE(IsVisible(Tab, TEXT("ConfiguratorList")));
	Tab.Choose(TEXT("ModeSelector"), TEXT("Configurator"));
	EXPECT_EQ(Tab.Read(TEXT("ListTitle")), "Unit groups of the configurators");
	EXPECT_THAT(Rows(Tab), ElementsAre("HT-B Brisa", "HT-A Alba", "HT-B Brisa"));
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "3 entries");
	EXPECT_THAT(Rows(Tab, TEXT("ConfiguratorList")), ElementsAre("Flat Brisa", "Loft Alba, Brisa"));
	Tab.Click(TEXT("HomeButton"));
	EXPECT_THAT(Rows(Tab, TEXT("ConfiguratorList")), ElementsAre("Flat Brisa", "Loft Alba, Brisa")) << "where this mode begins";
	Tab.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	Wait(0.0);
	EXPECT_EQ(Tab.Read(TEXT("ListTitle")), "Unit groups of the configurators");
	EXPECT_EQ(Tab.Read(TEXT("ListCount")), "No entries");
	Tab.Choose(TEXT("ModeSelector"), TEXT("Promotion"));
	EXPECT_THAT(Rows(Tab), ElementsAre("QV-P Pier"));
}

TEST_F(DeveloperPanel, MakesADataAssetOfTheConfiguratorThatIsClicked)
{
	FTestTab Tab = OpenHarborTower();
	Tab.Choose(TEXT("ModeSelector"), TEXT("Configurator"));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("CreateAsset"))) << "none is chosen";
	Wait(0.0);
	Tab.Choose(TEXT("ConfiguratorList"), TEXT("Loft"));
	EXPECT_EQ(Tab.Read(TEXT("CreateAsset")), "Create a data asset of Loft");
	Tab.Click(TEXT("HomeButton"));
	EXPECT_FALSE(IsEnabled(Tab, TEXT("CreateAsset")));
	EXPECT_THAT(Tab.Snapshot(), Not(HasSubstr("item (selected)"))) << "listed anew, none is chosen";
	Tab.Choose(TEXT("ConfiguratorList"), TEXT("Loft"));
	TakeOutcomes();
	Tab.Click(TEXT("CreateAsset"));
	Tab.Click(TEXT("CreateAsset"));
	const std::vector<FOutcome> Outcomes = TakeOutcomes();
	ASSERT_EQ(Outcomes.size(), 2u);
	EXPECT_EQ(Outcomes[0].Title, "Success Configuration Creation");
	EXPECT_EQ(Outcomes[1].Message, "Configurator is already created");
	EXPECT_NE(FindObject<UObject>(nullptr, TEXT("/Game/Velmorant/Configurator/Configurator_Loft.Configurator_Loft")), nullptr);
}

TEST_F(DeveloperPanel, EveryFunctionForDesignersIsReachedByALayoutOrTheDocumentationSaysWhyNot)
{
	StartEditor();
	std::string Layouts;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(VELMORANT_SOURCE_DIR "/Companions/VelmorantPro/Content/EditorHelpers"))
	{
		Layouts += Entry.is_regular_file() ? ReadBytes(Entry.path()) : std::string();
	}
	const std::string Documentation = ReadBytes(VELMORANT_SOURCE_DIR "/Docs/Layouts.md");
	int32 NumFunctions = 0;
	for (const UClass* Class : {UVlmEWLoginUser::StaticClass(), UVlmEWDevInfo::StaticClass(), UVlmEWProjectSelector::StaticClass(), UVlmEWListDisplayer::StaticClass(), UListDisplayerItemBase::StaticClass(),
			 UVlmEWMinimapTool::StaticClass(), UVlmEWUnitVolumeDuplicationList::StaticClass()})
	{
		for (TFieldIterator<UFunction> Function(Class, EFieldIteratorFlags::ExcludeSuper); Function; ++Function)
		{
			if (!Function->HasAnyFunctionFlags(FUNC_BlueprintCallable) || Function->HasAnyFunctionFlags(FUNC_BlueprintEvent))
			{
				continue;
			}
			++NumFunctions;
			const std::string Name = ToUtf8(Function->GetName());
			const std::string Read = Name.starts_with("Get") ? Name.substr(3) : Name;
			const bool bReached = Layouts.find("\"" + Name + "\"") != std::string::npos || Layouts.find("{self." + Read) != std::string::npos;
			const bool bExplained = Documentation.find("`" + Name + "` | nowhere: ") != std::string::npos;
			EXPECT_NE(bReached, bExplained) << Name << (bReached ? " is reached, and called out of reach" : " is not reached");
		}
	}
	EXPECT_GT(NumFunctions, 20);
}
