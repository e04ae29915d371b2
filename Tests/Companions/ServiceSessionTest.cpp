// Copyright Velmorant. All Rights Reserved.

#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
	const char* const ExpiredLine = "Warning: The login is not valid any more; sign in again.";
}

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
	WriteServiceWith("\"delaySeconds\": 30");
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
	TakeSdkLog();
	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
	EXPECT_THAT(TakeSdkLog(), Contains(ExpiredLine));
	EXPECT_EQ(GetUser()->GetEditorUserProjects().Num(), 2) << "what was received stays";
}

TEST_F(ServiceSession, EndsWithTheLogout)
{
	StartEditor();
	SignIn();
	GetUser()->RequestUserLogout();
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_TRUE(GetUser()->GetUserLoginInfo().Email.IsEmpty());
	EXPECT_THAT(AskForProjects(), ElementsAre("no"));
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
	EXPECT_THAT(Updates, ElementsAre(EUpdateRequestDataType::None));
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
	EXPECT_THAT(Updates, ElementsAre(EUpdateRequestDataType::None, EUpdateRequestDataType::None));
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
