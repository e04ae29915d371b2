// Copyright Velmorant. All Rights Reserved.

#include "Components/EditableText.h"
#include "EditorWidgets/VlmEWLoginUser.h"
#include "Engine/Engine.h"
#include "PanelLayouts.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantSDKEngineSubsystem.h"

#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace LoginPanelTest
{
	const char* const SavedUser = "UserConfig/VelmorantUser.json";

	FTestPanel MakePanel()
	{
		return FTestPanel(PanelLayouts::Login, {TEXT("OnLoginInProcess"), TEXT("OnLoginResultReceived"), TEXT("OnRememberMeOption")});
	}

	void FillIn(FTestPanel& Panel, const TCHAR* Password)
	{
		Panel.Type(TEXT("UserName"), TEXT("ada"));
		Panel.Type(TEXT("UserPassword"), Password);
	}
}

using namespace LoginPanelTest;

class LoginPanel : public FToolkitTest
{
protected:
	/** A panel that somebody listens to, in a new editor, with the answer to its login. */
	FTestPanel SignIn(const TCHAR* Password)
	{
		StartEditor();
		FTestPanel Panel = MakePanel();
		Panel.ListenTo(TEXT("OnLoginResult"));
		Panel.Show();
		FillIn(Panel, Password);
		Panel.Click(TEXT("SummitButton"));
		Wait(0.0);
		return Panel;
	}

	/** A login that does not come from the panel. */
	void LogInElsewhere()
	{
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
		Wait(0.0);
	}
};

TEST_F(LoginPanel, SignsInAndTellsSo)
{
	WriteServiceWith("\"delaySeconds\": 2");
	StartEditor();
	FTestPanel Panel = MakePanel();
	Panel.Show();
	Panel.Hide(); // shown again, a click still counts once
	Panel.Show();
	FillIn(Panel, TEXT("sesame-77"));
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty()) << "nothing is remembered, nothing is asked yet";

	Panel.Click(TEXT("SummitButton"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(true)"));
	EXPECT_TRUE(GetUser()->GetUserInfo().bFromEditor);
	EXPECT_FALSE(GetUser()->GetUserInfo().bRememberMe);
	Wait(1.9);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	Wait(0.2);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(false)", "OnLoginResultReceived(true)"));
	EXPECT_TRUE(GetUser()->HasValidToken());
	EXPECT_EQ(ToUtf8(GetUser()->GetUserLoginInfo().LastName), "Byron");
	EXPECT_EQ(UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser(), GetUser()) << "the editor's user is the one who acts";
}

TEST_F(LoginPanel, EndsTheBusyStateWhateverGoesWrong)
{
	const struct
	{
		const char* Behaviour;
		const char* Service;
		const TCHAR* Password;
	} Cases[] = {
		{"wrong password", R"({"users": [{"userName": "ada", "password": "sesame-77"}]})", TEXT("Sesame-77")},
		{"no password", R"({"users": [{"userName": "ada", "password": "sesame-77"}]})", TEXT("")},
		{"unknown user", R"({})", TEXT("sesame-77")},
		{"failing request", R"({"users": [{"userName": "ada", "password": "sesame-77"}], "failingRequests": ["login"]})", TEXT("sesame-77")},
		{"broken data", "{", TEXT("sesame-77")},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteService(Case.Service);
		StartEditor();
		FTestPanel Panel = MakePanel();
		Panel.Show();
		FillIn(Panel, Case.Password);
		Panel.Click(TEXT("SummitButton"));
		Wait(0.0);
		EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(false)", "OnLoginResultReceived(false)"));
		EXPECT_FALSE(GetUser()->HasValidToken());
		EXPECT_THAT(TakeOutcomes(), IsEmpty()) << "the panel shows no message of its own";
	}
}

TEST_F(LoginPanel, TellsItsListenersLastAndIsUnboundAfterASuccess)
{
	FTestPanel Panel = SignIn(TEXT("sesame-77"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(false)", "OnLoginResultReceived(true)", "OnLoginResult(true)"));
	LogInElsewhere();
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
}

TEST_F(LoginPanel, StaysBoundAfterAFailureThatSomebodyListensTo)
{
	FTestPanel Panel = SignIn(TEXT("wrong"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(false)", "OnLoginResultReceived(false)", "OnLoginResult(false)"));
	LogInElsewhere();
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(false)", "OnLoginResultReceived(true)", "OnLoginResult(true)"));
}

TEST_F(LoginPanel, IsUnboundAfterAFailureThatNobodyListensTo)
{
	StartEditor();
	FTestPanel Panel = MakePanel();
	Panel.Show();
	FillIn(Panel, TEXT("wrong"));
	Panel.Click(TEXT("SummitButton"));
	Wait(0.0);
	Panel.TakeEvents();
	LogInElsewhere();
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
}

TEST_F(LoginPanel, TwoClicksAreTwoRequestsAndOneBinding)
{
	WriteServiceWith("\"failingRequests\": [\"login\"]");
	StartEditor();
	FTestPanel Panel = MakePanel();
	Panel.ListenTo(TEXT("OnLoginResult")); // keeps the binding after the first failure
	Panel.Show();
	Panel.Click(TEXT("SummitButton"));
	Panel.Click(TEXT("SummitButton"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(true)", "OnLoginInProcess(true)"));
	Wait(0.0);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnLoginInProcess(false)", "OnLoginResultReceived(false)", "OnLoginResult(false)", "OnLoginInProcess(false)", "OnLoginResultReceived(false)", "OnLoginResult(false)"));
}

TEST_F(LoginPanel, FillsInWhatIsRemembered)
{
	const struct
	{
		const char* Behaviour;
		const char* Saved;
		const char* UserName;
		const char* Password;
	} Cases[] = {
		{"name and password", R"({"userName": "ada", "password": "sesame-77"})", "ada", "sesame-77"},
		{"a name without password", R"({"userName": "Türmchen Ñ", "password": ""})", "Türmchen Ñ", ""},
		{"a password without name", R"({"userName": "", "password": "x"})", "", "x"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Folder.Write(SavedUser, Case.Saved);
		StartEditor();
		FTestPanel Panel = MakePanel();
		Panel.Show();
		EXPECT_EQ(ToUtf8(Panel.Find<UEditableText>(TEXT("UserName"))->GetText()), Case.UserName);
		EXPECT_EQ(ToUtf8(Panel.Find<UEditableText>(TEXT("UserPassword"))->GetText()), Case.Password);
		EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnRememberMeOption(true)"));
	}
}

TEST_F(LoginPanel, KeepsItsFieldsWhereNothingIsRemembered)
{
	for (const char* Saved : {R"({"userName": "", "password": ""})", "nothing"})
	{
		Folder.Write(SavedUser, Saved);
		StartEditor();
		FTestPanel Panel = MakePanel();
		Panel.Find<UEditableText>(TEXT("UserName"))->SetText(FText::FromString(TEXT("eve")));
		Panel.Find<UEditableText>(TEXT("UserPassword"))->SetText(FText::FromString(TEXT("typed")));
		Panel.Show();
		EXPECT_EQ(Panel.Read(TEXT("UserName")), "eve");
		EXPECT_EQ(ToUtf8(Panel.Find<UEditableText>(TEXT("UserPassword"))->GetText()), "typed");
		EXPECT_EQ(Panel.TakeEvents().empty(), Saved == std::string("nothing"));
		EXPECT_NE(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false), nullptr) << "the panel makes the user whom it asks";
	}

	FTestPanel WithoutSdk = MakePanel();
	TGuardValue<UEngine*> NoEngine(GEngine, nullptr); // whose subsystem the SDK is
	WithoutSdk.Show();
	EXPECT_EQ(WithoutSdk.Read(TEXT("UserName")), "");
}

TEST_F(LoginPanel, TakesNameAndOptionAsTheyAre)
{
	Folder.Write(SavedUser, R"({"userName": "ada", "password": "sesame-77"})");
	StartEditor();
	FTestPanel Panel = MakePanel();
	Panel.Show();
	Panel.Type(TEXT("UserName"), TEXT(" ada "));
	Panel.Click(TEXT("SummitButton"));
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().UserName), " ada ");
	Wait(0.0);
	EXPECT_FALSE(GetUser()->HasValidToken()) << "blanks count";

	FTestPanel Next = MakePanel(); // the user is still remembered, but signed in last without the option
	Next.Show();
	EXPECT_THAT(Next.TakeEvents(), ElementsAre("OnRememberMeOption(false)"));
}

TEST_F(LoginPanel, RemembersTheUserInAFileThatOnlyTheyCanRead)
{
	StartEditor();
	{
		FTestPanel Panel = MakePanel();
		Panel.Show();
		FillIn(Panel, TEXT("sesame-77"));
		Panel.Check(TEXT("RememberUserCheckBox"), true);
		Panel.Click(TEXT("SummitButton"));
		Wait(0.0);
		EXPECT_THAT(ToUtf8(HostSnapshot::Take(Panel.Get()->TakeWidget())), Not(HasSubstr("sesame-77")));
	}
	EXPECT_EQ(std::filesystem::status(Folder.GetNative(SavedUser)).permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative("Project")))
	{
		const std::string Relative = std::filesystem::relative(Entry.path(), Folder.GetNative("Project")).string();
		if (Entry.is_regular_file() && Relative != "Service.json")
		{
			EXPECT_THAT(ReadProjectFile(Relative), Not(HasSubstr("sesame-77"))) << Relative;
		}
	}
	EXPECT_THAT(WholeLog(), Not(HasSubstr("sesame-77")));

	FTestPanel Again = MakePanel();
	Again.Show();
	EXPECT_EQ(Again.Read(TEXT("UserName")), "ada") << "opened again in the same editor";

	StopEditor();
	StartEditor();
	FTestPanel Next = MakePanel();
	Next.Show();
	EXPECT_EQ(Next.Read(TEXT("UserName")), "ada") << "opened in the next editor";
	EXPECT_THAT(Next.TakeEvents(), ElementsAre("OnRememberMeOption(true)"));
}

TEST_F(LoginPanel, ForgetsTheUserWhoSignsInWithoutTheOption)
{
	Folder.Write(SavedUser, R"({"userName": "ada", "password": "sesame-77"})");
	StartEditor();
	FTestPanel Panel = MakePanel();
	Panel.Show();
	Panel.Click(TEXT("SummitButton"));
	Wait(0.0);
	EXPECT_TRUE(GetUser()->HasValidToken());
	EXPECT_FALSE(Folder.Exists(SavedUser));
}
