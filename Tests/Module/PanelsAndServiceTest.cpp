// Copyright Velmorant. All Rights Reserved.

#include "Components/ListView.h"
#include "EditorWidgets/VlmEWListDisplayer.h"
#include "EditorWidgets/VlmEWProjectSelector.h"
#include "HostObjects.h"
#include "PanelLayouts.h"
#include "ProjectWrapper.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"

using namespace SelectorEvents;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace PanelsAndServiceTest
{
	/** Ada has Harbor Tower with two towers and Quay View with a pier; Eve has a project of her own. Members go first. */
	std::string TwoAccounts(const std::string& Members = "")
	{
		return "{" + Members + R"(
			"users": [
				{"userName": "ada", "password": "sesame-77", "firstName": "Ada", "projects": ["HT", "QV"]},
				{"userName": "eve", "password": "sesame-78", "firstName": "Eve", "projects": ["EV"]}],
			"projects": [
				{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", "unitGroups": [{"keyCode": "HT-A", "name": "Alba", "units": [{"keyCode": "A-1", "name": "First", "unitID": 1}]}, {"keyCode": "HT-B", "name": "Brisa", "units": []}]},
				{"keyCode": "QV", "apiKey": "api-qv", "name": "Quay View", "unitGroups": [{"keyCode": "QV-P", "name": "Pier", "units": []}]},
				{"keyCode": "EV", "apiKey": "api-ev", "name": "Eve's Garden", "unitGroups": []}]})";
	}

	const char* const ExpiredLine = "Warning: The login is not valid any more; sign in again.";
}

using namespace PanelsAndServiceTest;

/** What the service answers late, to somebody else, or not at all. */
class PanelsAndService : public FToolkitTest
{
protected:
	PanelsAndService()
	{
		WriteService(TwoAccounts());
		WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=no project's\n");
	}

	void SignInAs(const TCHAR* UserName, const TCHAR* Password)
	{
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, UserName, Password));
		Wait(0.0);
		ASSERT_TRUE(GetUser()->HasValidToken());
	}

	static FTestPanel ShowLogin()
	{
		FTestPanel Panel(PanelLayouts::Login, {TEXT("OnLoginInProcess"), TEXT("OnLoginResultReceived")});
		Panel.Show();
		return Panel;
	}

	static FTestPanel ShowSelector()
	{
		FTestPanel Panel(PanelLayouts::ProjectSelector, {TEXT("OnRequestingUserProjectsProcess")});
		Panel.Show();
		return Panel;
	}

	static FTestPanel ShowList()
	{
		FTestPanel Panel(PanelLayouts::ListDisplayer, {TEXT("OnListCountChange")});
		Panel.Show();
		Activate(Panel);
		return Panel;
	}

	static void Activate(const FTestPanel& Panel) { IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get()); }

	static void SignInWith(FTestPanel& Login)
	{
		Login.Type(TEXT("UserName"), TEXT("ada"));
		Login.Type(TEXT("UserPassword"), TEXT("sesame-77"));
		Login.Click(TEXT("SummitButton"));
	}

	static std::vector<std::string> Rows(const FTestPanel& List)
	{
		std::vector<std::string> Names;
		for (const UObject* Item : List.Find<UListView>(TEXT("ItemList"))->GetListItems())
		{
			Names.push_back(ToUtf8(CastChecked<UListDisplayerItemBase>(Item)->DisplayName));
		}
		return Names;
	}

	/** All seconds of the token pass. */
	void LetTheTokenExpire()
	{
		Wait(61.0);
		ASSERT_FALSE(GetUser()->HasValidToken());
	}
};

TEST_F(PanelsAndService, AnswersToPanelsThatWereClosedReachTheUserOnly)
{
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	StartEditor();
	{
		FTestPanel Login = ShowLogin();
		SignInWith(Login);
	}
	HostObjects::CollectGarbage();
	Wait(2.1);
	ASSERT_TRUE(GetUser()->HasValidToken());
	{
		const FTestPanel Selector = ShowSelector();
		Activate(Selector);
	}
	HostObjects::CollectGarbage();
	Wait(2.1);
	ASSERT_EQ(GetUser()->GetEditorUserProjects().Num(), 2);
	{
		const FTestPanel List = ShowList();
		GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[0], false);
	}
	HostObjects::CollectGarbage();
	Wait(2.1);
	EXPECT_EQ(GetRequests()->GetProjectWrapper()->GetUnitGroupListData().Num(), 2);
	EXPECT_THAT(Rows(ShowList()), ElementsAre("Alba", "Brisa")) << "opened anew";
}

TEST_F(PanelsAndService, APanelOffTheScreenTakesItsAnswerAndShowsItLater)
{
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(2.1);
	FTestPanel Selector = ShowSelector();
	Activate(Selector);
	Selector.Hide();
	Wait(2.1);
	EXPECT_THAT(Selector.TakeEvents(), ElementsAre(Busy, Idle));
	Selector.Show();
	EXPECT_THAT(Selector.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Harbor Tower", "Quay View"));
}

TEST_F(PanelsAndService, ALogoutEmptiesTheListsThatShow)
{
	StartWithProject();
	FTestPanel List = ShowList();
	List.Choose(TEXT("ItemList"), TEXT("Alba"));
	ASSERT_THAT(Rows(List), ElementsAre("First"));
	List.TakeEvents();

	GetUser()->RequestUserLogout();
	EXPECT_THAT(List.TakeEvents(), ElementsAre("OnListCountChange(0)"));
	EXPECT_THAT(Rows(List), IsEmpty());
	EXPECT_FALSE(List.Get<UVlmEWListDisplayer>()->IsProjectSelected());
	EXPECT_EQ(ToUtf8(List.Get<UVlmEWListDisplayer>()->GetUnitGroupTargetName()), "");
	List.Click(TEXT("HomeButton"));
	EXPECT_THAT(Rows(List), IsEmpty());
}

TEST_F(PanelsAndService, AnotherAccountSeesNothingOfTheOneBefore)
{
	StartWithProject();
	FTestPanel Selector = ShowSelector();
	Activate(Selector);
	const FTestPanel List = ShowList();
	ASSERT_THAT(Rows(List), ElementsAre("Alba", "Brisa"));

	SignInAs(TEXT("eve"), TEXT("sesame-78")); // without a logout
	EXPECT_THAT(Rows(List), IsEmpty());
	Selector.TakeEvents();
	Activate(Selector);
	EXPECT_THAT(Selector.TakeEvents(), ElementsAre(Busy)) << "asked for, not taken from what is known";
	Wait(0.0);
	EXPECT_THAT(Selector.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Eve's Garden"));
}

TEST_F(PanelsAndService, TheSameAccountGoesOnWhereItWas)
{
	StartWithProject();
	const FTestPanel List = ShowList();
	SignInAs(TEXT("ADA"), TEXT("sesame-77"));
	EXPECT_THAT(Rows(List), ElementsAre("Alba", "Brisa"));
	EXPECT_EQ(GetUser()->GetEditorUserProjects().Num(), 2);
}

TEST_F(PanelsAndService, AnAnswerForTheAccountBeforeOnlyEndsTheRequest)
{
	StartEditor();
	SignInAs(TEXT("ada"), TEXT("sesame-77"));
	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	FTestPanel Selector = ShowSelector();
	Activate(Selector);
	GetUser()->RequestUserLogout();
	Wait(2.1);
	EXPECT_THAT(Selector.TakeEvents(), ElementsAre(Busy, Idle));
	EXPECT_THAT(Selector.Options(TEXT("ProjectSelection")), IsEmpty());
	EXPECT_EQ(GetUser()->GetEditorUserProjects().Num(), 0);
}

TEST_F(PanelsAndService, ASwitchOfProjectShowsTheNewOneOnly)
{
	StartWithProject();
	FTestPanel List = ShowList();
	List.Choose(TEXT("ItemList"), TEXT("Alba"));
	List.Type(TEXT("SearchText"), TEXT("fir"));

	WriteService(TwoAccounts(R"("delaySeconds": 2,)"));
	const TArray<FProject> Projects = GetUser()->GetEditorUserProjects();
	GetUser()->SetSelectedProject(Projects[1], false);
	EXPECT_THAT(Rows(List), IsEmpty()) << "at once";
	Wait(1.0);
	GetUser()->SetSelectedProject(Projects[0], false); // and back, before the answer
	GetUser()->SetSelectedProject(Projects[1], false);
	Wait(1.1);
	EXPECT_THAT(Rows(List), IsEmpty()) << "the first answer is for a selection that is over";
	Wait(1.0);
	EXPECT_THAT(Rows(List), ElementsAre("Pier"));
	EXPECT_FALSE(List.Get<UVlmEWListDisplayer>()->IsUnitGroupTarget());
	List.Type(TEXT("SearchText"), TEXT("alba"));
	EXPECT_THAT(Rows(List), IsEmpty()) << "rows of the project before are not searched";
}

TEST_F(PanelsAndService, AnExpiredTokenIsToldOnceAndTheNextLoginGoesOn)
{
	WriteService(TwoAccounts(R"("tokenSeconds": 60,)"));
	StartWithProject();
	FTestPanel Selector = ShowSelector();
	Activate(Selector);
	Selector.TakeEvents();
	const FTestPanel List = ShowList();

	TakeSdkLog();
	LetTheTokenExpire();
	EXPECT_THAT(TakeSdkLog(), ElementsAre(ExpiredLine));
	Selector.Get<UVlmEWProjectSelector>()->RequestEditorUserProjects();
	Wait(0.0);
	EXPECT_THAT(Selector.TakeEvents(), ElementsAre(Busy, Idle));
	EXPECT_THAT(Selector.Options(TEXT("ProjectSelection")), ElementsAre("No Selection", "Harbor Tower", "Quay View"));
	Selector.Choose(TEXT("ProjectSelection"), TEXT("Quay View"));
	Wait(0.0);
	EXPECT_THAT(Rows(List), IsEmpty()) << "another project, whose data has not come";
	EXPECT_THAT(TakeSdkLog(), IsEmpty()) << "said before";

	FTestPanel Login = ShowLogin();
	SignInWith(Login);
	Wait(0.0);
	EXPECT_THAT(Login.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(false)", "OnLoginResultReceived(true)"));
	Wait(0.0);
	EXPECT_THAT(Rows(List), ElementsAre("Pier")) << "signed in again, all goes on";
}

TEST_F(PanelsAndService, TwoPanelsOfAKindDoNotDisturbEachOther)
{
	StartEditor();
	FTestPanel FirstLogin = ShowLogin();
	FTestPanel SecondLogin = ShowLogin();
	SignInWith(FirstLogin);
	Wait(0.0);
	EXPECT_THAT(FirstLogin.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(false)", "OnLoginResultReceived(true)"));
	EXPECT_THAT(SecondLogin.TakeEvents(), IsEmpty());

	FTestPanel FirstSelector = ShowSelector();
	FTestPanel SecondSelector = ShowSelector();
	Activate(FirstSelector);
	Wait(0.0);
	EXPECT_THAT(FirstSelector.TakeEvents(), ElementsAre(Busy, Idle));
	EXPECT_THAT(SecondSelector.TakeEvents(), IsEmpty());
	Activate(SecondSelector);
	SecondSelector.Choose(TEXT("ProjectSelection"), TEXT("Harbor Tower"));
	EXPECT_EQ(FirstSelector.Read(TEXT("ProjectSelection")), "No Selection");
	Wait(0.0);

	FTestPanel FirstList = ShowList();
	{
		FTestPanel SecondList = ShowList();
		FirstList.Type(TEXT("SearchText"), TEXT("alba"));
		EXPECT_THAT(Rows(FirstList), ElementsAre("Alba"));
		EXPECT_THAT(Rows(SecondList), ElementsAre("Alba", "Brisa"));
		SecondList.Choose(TEXT("ItemList"), TEXT("Alba"));
		EXPECT_THAT(Rows(SecondList), ElementsAre("First"));
		EXPECT_THAT(Rows(FirstList), ElementsAre("Alba"));
	}
	HostObjects::CollectGarbage();
	FirstList.TakeEvents();
	FirstList.Click(TEXT("HomeButton"));
	EXPECT_THAT(FirstList.TakeEvents(), ElementsAre("OnListCountChange(2)"));
}
