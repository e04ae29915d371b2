// Copyright Velmorant. All Rights Reserved.

#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKSettings.h"

#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace ServiceSessionTest
{
	const char* const ExpiredLine = "Warning: The login is not valid any more; sign in again.";

	/** Writes down what the user and their request manager tell. */
	const char* const Diary = R"({
		"ParentClass": "/Script/VelmorantProUI.VlmListEntry",
		"Tree": {"Class": "TextBlock", "Name": "Heard"},
		"Objects": {
			"User": {"ResultOf": "/Script/VelmorantSDK.VelmorantSDKEngineSubsystem.GetVelmorantEditorUser", "With": {"bCreateIfMissing": true}},
			"Requests": "{User.ProjectRequestManager}"},
		"Calls": {
			"User.OnAccountLeft": [{"Set": "Heard.Text", "To": "{Heard.Text} left"}],
			"User.OnSessionChanged": [{"Set": "Heard.Text", "To": {"If": "{User.HasValidToken}", "Then": "{Heard.Text} in:{User.Account}", "Else": "{Heard.Text} out:{User.Account}"}}],
			"Requests.OnProjectDataRequest": [{"Set": "Heard.Text", "To": {"If": "{Requests.IsRequestingProjectData}", "Then": "{Heard.Text} asked:{Requests.SelectedProjectName}", "Else": "{Heard.Text} answered"}}]
		}})";
}

using namespace ServiceSessionTest;

/** Logins, tokens and what may be asked with them. */
class ServiceSession : public FToolkitTest
{
protected:
	bool LogIn(const TCHAR* UserName, const TCHAR* Password)
	{
		GetUser()->RequestUserLogout();
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, UserName, Password));
		Wait(0.0);
		return GetUser()->HasValidToken();
	}

	/** Answers to requests for projects, each as "yes" or "no" with the project names. */
	std::vector<std::string> AskForProjects()
	{
		std::vector<std::string> Answers;
		const FDelegateHandle Handle = GetUser()->GetOnProjectsResponse().AddLambda([&Answers](bool bSuccess, TArray<FProject> Projects) {
			std::string Answer = bSuccess ? "yes" : "no";
			for (const FProject& Project : Projects)
			{
				Answer += " " + ToUtf8(Project.ProjectName);
			}
			Answers.push_back(Answer);
		});
		GetUser()->RequestEditorUserProjects();
		EXPECT_THAT(Answers, IsEmpty()) << "an answer within the call";
		Wait(0.0);
		GetUser()->GetOnProjectsResponse().Remove(Handle);
		return Answers;
	}
};

TEST_F(ServiceSession, TellsWhyALoginFailedAndWhatToDo)
{
	const struct
	{
		const char* Behaviour;
		const char* Service; // null: no file
		const TCHAR* Switches; // null: those that name the file
		const TCHAR* Password;
		const char* Text;
	} Cases[] = {
		{"it did not", "", nullptr, TEXT("sesame-77"), ""},
		{"wrong password", "", nullptr, TEXT("sesame"), "The sign-in failed. Check user name and password."},
		{"no file", nullptr, nullptr, TEXT("sesame-77"), "The service cannot be reached. Check the connection, then try again."},
		{"a request that is to fail", R"("failingRequests": ["login"])", nullptr, TEXT("sesame-77"), "The service cannot be reached. Check the connection, then try again."},
		{"no setting", "", TEXT(""), TEXT("sesame-77"), "No service is set. Enter one in the project settings, under Plugins, Velmorant SDK Settings, then try again."},
		{"a broken file", R"("user": [])", nullptr, TEXT("sesame-77"), "The service's data cannot be used. The log says what is wrong with it: have that mended, then try again."},
		{"no answer", R"("delaySeconds": 30.5)", nullptr, TEXT("sesame-77"), "The service has not answered within 30 seconds. Try again later, or allow more time in the Velmorant SDK Settings."},
	};
	const FString NamesTheFile = CommandLine;
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		CommandLine = Case.Switches ? FString(Case.Switches) : NamesTheFile;
		WriteServiceWith(Case.Service ? Case.Service : "");
		StartEditor();
		if (!Case.Service)
		{
			std::filesystem::remove(Folder.GetNative("Project/Service.json"));
		}
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), Case.Password));
		EXPECT_TRUE(GetUser()->IsLoginInProcess());
		Wait(30.1);
		EXPECT_FALSE(GetUser()->IsLoginInProcess());
		EXPECT_EQ(ToUtf8(GetUser()->GetLoginFailureText()), Case.Text);
	}
}

TEST_F(ServiceSession, TakesAServiceThatIsSetAfterAFailure)
{
	CommandLine.Empty();
	StartEditor();
	EXPECT_FALSE(LogIn(TEXT("ada"), TEXT("sesame-77")));
	GetMutableDefault<UVelmorantSDKSettings>()->ServiceDataFile = TEXT("Service.json");
	EXPECT_TRUE(LogIn(TEXT("ada"), TEXT("sesame-77")));
	EXPECT_EQ(ToUtf8(GetUser()->GetLoginFailureText()), "");
}

TEST_F(ServiceSession, EndsEveryRequestWithinTheTimeThatIsSet)
{
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nRequestTimeoutSeconds=5.5\n");
	StartWithProject();
	std::vector<EUpdateRequestDataType> Updates;
	GetRequests()->GetOnUpdateRequest().AddLambda([&Updates](EUpdateRequestDataType DataType, EUpdateRequestType) { Updates.push_back(DataType); });
	bool bAnswered = false;
	GetUser()->GetOnProjectsResponse().AddLambda([&bAnswered](bool bSuccess, TArray<FProject>) { bAnswered = !bSuccess; });
	WriteServiceWith("\"delaySeconds\": 7");

	GetUser()->RequestEditorUserProjects();
	GetRequests()->RefreshProject();
	GetRequests()->RequestConfigurator("Tower", EUpdateRequestType::Get);
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(5.4);
	EXPECT_FALSE(bAnswered) << "the wait for the service is not over";
	Wait(0.2);
	EXPECT_TRUE(bAnswered) << "given up, and told as a failure";
	EXPECT_THAT(Updates, ElementsAre(EUpdateRequestDataType::None, EUpdateRequestDataType::None));
	for (const FText& Text : {GetUser()->GetProjectsFailureText(), GetRequests()->GetProjectDataFailureText(), GetUser()->GetLoginFailureText()})
	{
		EXPECT_THAT(ToUtf8(Text), HasSubstr("within 5.5 seconds"));
	}
	bAnswered = false;
	Wait(5.0);
	EXPECT_FALSE(bAnswered) << "what comes later is dropped";
	EXPECT_EQ(Updates.size(), 2u);

	GetMutableDefault<UVelmorantSDKSettings>()->RequestTimeoutSeconds = 0.0f;
	GetRequests()->RefreshProject();
	Wait(7.1);
	EXPECT_EQ(Updates.back(), EUpdateRequestDataType::ProjectData) << "no limit";
	EXPECT_EQ(ToUtf8(GetRequests()->GetProjectDataFailureText()), "");
}

TEST_F(ServiceSession, AnswersThatComeTooLateSignNobodyIn)
{
	WriteServiceWith("\"delaySeconds\": 40");
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(31.0);
	Wait(10.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
}

TEST_F(ServiceSession, TellsOfItsBeginningAndEndAtOnce)
{
	WriteServiceWith("\"tokenSeconds\": 60");
	StartEditor();
	FTestPanel Panel(Diary, {});
	Panel.Show();
	EXPECT_TRUE(LogIn(TEXT("ada"), TEXT("sesame-77")));
	EXPECT_EQ(Panel.Read(TEXT("Heard")), " left out: in:ada") << "the logout before it, and the login";
	SelectProject(TEXT("HT"));
	EXPECT_EQ(Panel.Read(TEXT("Heard")), " left out: in:ada asked:Harbor Tower answered");
	TakeSdkLog();
	Wait(59.0);
	EXPECT_TRUE(GetUser()->HasValidToken());
	Wait(1.1);
	EXPECT_EQ(Panel.Read(TEXT("Heard")), " left out: in:ada asked:Harbor Tower answered out:ada") << "nobody has asked";
	GetUser()->RequestEditorUserProjects();
	GetUser()->RequestEditorUserProjects();
	GetRequests()->RefreshProject();
	GetRequests()->RequestConfigurator("Tower", EUpdateRequestType::Get);
	Wait(0.0);
	EXPECT_THAT(TakeSdkLog(), ElementsAre(ExpiredLine)) << "one message, however many requests fail";
	EXPECT_THAT(ToUtf8(GetUser()->GetProjectsFailureText()), HasSubstr("Sign in again"));
	EXPECT_EQ(ToUtf8(GetUser()->GetAccount()), "ada") << "who may go on";
	EXPECT_EQ(ToUtf8(GetUser()->GetUserLoginInfo().Email), "") << "nobody is signed in";
}

TEST_F(ServiceSession, EndsWhenTheServiceKnowsItNoMore)
{
	StartWithProject();
	FTestPanel Panel(Diary, {});
	Panel.Show();
	WriteService(R"({"users": [{"userName": "eve", "password": "sesame-78"}]})");
	TakeSdkLog();
	GetRequests()->RefreshProject();
	GetUser()->RequestEditorUserProjects();
	Wait(0.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_EQ(Panel.Read(TEXT("Heard")), " asked:Harbor Tower out:ada answered");
	EXPECT_THAT(TakeSdkLog(), ElementsAre(ExpiredLine));
}

TEST_F(ServiceSession, ALaterLoginFetchesWhatTheOneBeforeCouldNot)
{
	StartWithProject();
	WriteServiceWith(R"("failingRequests": ["projectData"])");
	GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[1], false);
	Wait(0.0);
	EXPECT_THAT(ToUtf8(GetRequests()->GetProjectDataFailureText()), HasSubstr("cannot be reached"));
	EXPECT_FALSE(GetRequests()->HasProjectData());
	WriteServiceWith("");
	SignIn();
	Wait(0.0);
	EXPECT_TRUE(GetRequests()->HasProjectData());
	EXPECT_EQ(ToUtf8(GetRequests()->GetProjectDataFailureText()), "");
}

TEST_F(ServiceSession, PointsOutADefaultKeyOfAnotherAccount)
{
	WriteService(R"({
		"users": [{"userName": "ada", "password": "a", "projects": ["HT"]}, {"userName": "eve", "password": "e", "projects": ["EV"]}, {"userName": "new", "password": "n"}],
		"projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower"}, {"keyCode": "EV", "apiKey": "api-ev", "name": "Garden"}]})");
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=API-HT\n");
	StartEditor();
	const auto IsForeignTo = [this](const TCHAR* UserName, const TCHAR* Password) {
		LogIn(UserName, Password);
		EXPECT_FALSE(GetUser()->IsDefaultApiKeyForeign()) << "the projects are not known yet";
		AskForProjects();
		return GetUser()->IsDefaultApiKeyForeign();
	};
	EXPECT_FALSE(IsForeignTo(TEXT("ada"), TEXT("a"))) << "letter case does not count";
	EXPECT_TRUE(IsForeignTo(TEXT("eve"), TEXT("e")));
	EXPECT_TRUE(IsForeignTo(TEXT("new"), TEXT("n"))) << "no projects at all";
	GetMutableDefault<UVelmorantSDKSettings>()->ApiKey.Empty();
	EXPECT_FALSE(GetUser()->IsDefaultApiKeyForeign());
}

TEST_F(ServiceSession, NeedsTheRightNameAndTheExactPassword)
{
	StartEditor();
	EXPECT_TRUE(LogIn(TEXT("ada"), TEXT("sesame-77")));
	EXPECT_TRUE(LogIn(TEXT("ADA"), TEXT("sesame-77"))) << "letter case does not count in names";
	EXPECT_FALSE(LogIn(TEXT("ada"), TEXT("SESAME-77")));
	EXPECT_FALSE(LogIn(TEXT("ada"), TEXT("")));
	EXPECT_FALSE(LogIn(TEXT(""), TEXT("")));
	EXPECT_FALSE(LogIn(TEXT("bob"), TEXT("sesame-77")));
}

TEST_F(ServiceSession, TellsWhoSignedIn)
{
	WriteService(R"({"users": [{"userName": "ada", "password": "sesame-77", "firstName": "Ada", "lastName": "Byron", "email": "ada@example.com", "picture": "ada.png"}]})");
	WriteProjectFile("ada.png", std::string("\x89PNG\0", 5));
	StartEditor();
	SignIn();
	const FLoginInfo Info = GetUser()->GetUserLoginInfo();
	EXPECT_EQ(ToUtf8(Info.FirstName) + " " + ToUtf8(Info.LastName) + " " + ToUtf8(Info.Email), "Ada Byron ada@example.com");
	EXPECT_EQ(Info.Picture.Data, (TArray<uint8>{0x89, 'P', 'N', 'G', 0}));

	WriteProjectFile("ada.png", "other");
	ASSERT_TRUE(LogIn(TEXT("ada"), TEXT("sesame-77")));
	EXPECT_EQ(GetUser()->GetUserLoginInfo().Picture.Data, (TArray<uint8>{'o', 't', 'h', 'e', 'r'})) << "an edit of the picture alone shows, too";
}

TEST_F(ServiceSession, AnswersAfterTheDelayOnTheEditorsClock)
{
	WriteServiceWith("\"delaySeconds\": 29.5");
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(29.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
	Wait(2.0);
	EXPECT_TRUE(GetUser()->HasValidToken());
}

TEST_F(ServiceSession, EndsWhenItsTokenExpires)
{
	WriteServiceWith("\"tokenSeconds\": 60");
	StartEditor();
	SignIn();
	EXPECT_THAT(AskForProjects(), ElementsAre("yes Harbor Tower Quay View"));
	Wait(61.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
	EXPECT_EQ(GetUser()->GetEditorUserProjects().Num(), 2) << "what was received stays";
}

TEST_F(ServiceSession, EndsWithTheLogout)
{
	StartEditor();
	SignIn();
	GetUser()->SetDevAsRuntimeUser(true);
	GetUser()->RequestUserLogout();
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_TRUE(GetUser()->GetUserLoginInfo().Email.IsEmpty());
	EXPECT_EQ(ToUtf8(GetUser()->GetAccount()), "");
	EXPECT_FALSE(GetUser()->ShouldUseAtRuntime()) << "a choice of the account that was left";
	TakeSdkLog();
	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
	EXPECT_THAT(TakeSdkLog(), ElementsAre("Warning: Nobody is signed in, so requests fail; sign in first."));
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().UserName), "ada") << "the login panel fills it in again";
}

TEST_F(ServiceSession, ALogoutCountsMoreThanALoginBeforeIt)
{
	StartEditor();
	for (const bool bLogout : {true, false})
	{
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
		if (bLogout)
		{
			GetUser()->RequestUserLogout();
		}
		Wait(0.0);
		EXPECT_EQ(GetUser()->HasValidToken(), !bLogout);
	}
}

TEST_F(ServiceSession, OutlivesAFailedLogin)
{
	StartEditor();
	SignIn();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("wrong")));
	Wait(0.0);
	EXPECT_TRUE(GetUser()->HasValidToken());
	EXPECT_THAT(AskForProjects(), ElementsAre("yes Harbor Tower Quay View"));
}

TEST_F(ServiceSession, AnswersForAnAccountReachItAlsoAfterAnotherLogin)
{
	StartEditor();
	SignIn();
	std::vector<int32> NumProjects;
	GetUser()->GetOnProjectsResponse().AddLambda([&NumProjects](bool bSuccess, TArray<FProject> Projects) { NumProjects.push_back(bSuccess ? Projects.Num() : -1); });
	const auto AskAndLeaveTheToken = [](bool bLogout) {
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
		GetUser()->RequestEditorUserProjects(); // answered after the login
		if (bLogout)
		{
			GetUser()->RequestUserLogout();
		}
	};
	AskAndLeaveTheToken(false);
	Wait(0.0);
	EXPECT_THAT(NumProjects, ElementsAre(2)) << "the same account with a new token";
	AskAndLeaveTheToken(true);
	Wait(0.0);
	EXPECT_THAT(NumProjects, ElementsAre(2, -1)) << "the account was left in between";
}

TEST_F(ServiceSession, SeesOnlyTheUsersOwnProjects)
{
	WriteService(R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["b"]}], "projects": [{"keyCode": "A", "name": "First"}, {"keyCode": "B", "name": "Second"}]})");
	StartEditor();
	SignIn();
	EXPECT_THAT(AskForProjects(), ElementsAre("yes Second"));

	std::vector<EUpdateRequestDataType> Updates;
	GetRequests()->GetOnUpdateRequest().AddLambda([&Updates](EUpdateRequestDataType DataType, EUpdateRequestType) { Updates.push_back(DataType); });
	FProject NotHers;
	NotHers.KeyCode = TEXT("A");
	GetUser()->SetSelectedProject(NotHers, false);
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(EUpdateRequestDataType::ProjectData, EUpdateRequestDataType::None)) << "another project; its data does not come";
	EXPECT_THAT(ToUtf8(GetRequests()->GetProjectDataFailureText()), HasSubstr("does not have it for you"));
}

TEST_F(ServiceSession, AnswersEveryRequestThatIsToFail)
{
	StartWithProject();
	std::vector<EUpdateRequestDataType> Updates;
	GetRequests()->GetOnUpdateRequest().AddLambda([&Updates](EUpdateRequestDataType DataType, EUpdateRequestType) { Updates.push_back(DataType); });
	WriteServiceWith(R"("failingRequests": ["projects", "projectData", "configurator"])");

	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
	GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[1], false);
	GetRequests()->RequestConfigurator("Tower", EUpdateRequestType::Get);
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(EUpdateRequestDataType::ProjectData, EUpdateRequestDataType::None, EUpdateRequestDataType::None)) << "the first for the other project";
}

TEST_F(ServiceSession, IsOverWhenItsEditorGoesDown)
{
	WriteServiceWith("\"delaySeconds\": 5");
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	StartEditor();
	Wait(10.0);
	EXPECT_FALSE(GetUser()->HasValidToken()) << "an answer to a request of the editor before";
	EXPECT_THAT(AskForProjects(), IsEmpty()) << "the delay has not passed";
}
