// Copyright Velmorant. All Rights Reserved.

#include "FakeSecretStore.h"
#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace SavedUserDataTest
{
	const char* const SavedUser = "UserConfig/VelmorantUser.json";
	const FVelmorantUserInformation Ada(true, TEXT("ada"), TEXT("sesame-77"));
}

using namespace SavedUserDataTest;

/** What "Remember me" keeps. */
class SavedUserData : public FToolkitTest
{
protected:
	void Remember()
	{
		GetUser()->RequestUserLogin(Ada);
		GetUser()->SaveUserData();
	}
};

TEST_F(SavedUserData, IsThereInTheNextEditor)
{
	StartEditor();
	EXPECT_FALSE(GetUser()->HasSavedUserData());
	Remember();
	EXPECT_TRUE(GetUser()->HasSavedUserData());
	StartEditor();
	ASSERT_TRUE(GetUser()->HasSavedUserData());
	EXPECT_TRUE(GetUser()->GetUserInfo().bRememberMe);
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().UserName), "ada");
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().Password), "sesame-77");
}

TEST_F(SavedUserData, KeepsEveryCharacter)
{
	const FString Password = TEXT("\"Ñ\\ 二\t€/😀");
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(true, TEXT("Türmchen"), Password));
	GetUser()->SaveUserData();
	StartEditor();
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().Password), ToUtf8(Password));
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().UserName), "Türmchen");
}

TEST_F(SavedUserData, IsReadableByItsOwnerOnlyEvenIfItWasNot)
{
	Folder.Write(SavedUser, "{}");
	std::filesystem::permissions(Folder.GetNative(SavedUser), std::filesystem::perms(0644));
	StartEditor();
	Remember();
	EXPECT_EQ(std::filesystem::status(Folder.GetNative(SavedUser)).permissions(), std::filesystem::perms(0600));
	EXPECT_EQ(Folder.Count("UserConfig"), 1u) << "nothing is left beside it";
}

TEST_F(SavedUserData, MakesAFolderThatOnlyItsOwnerCanOpen)
{
	StartEditor();
	Remember();
	EXPECT_EQ(std::filesystem::status(Folder.GetNative("UserConfig")).permissions(), std::filesystem::perms(0700));
}

TEST_F(SavedUserData, ThatIsDamagedCountsAsNone)
{
	for (const char* Damaged : {"", "{", "[]", "null", R"({"userName": "ada"})", R"({"userName": "ada", "password": 77})", R"({"userName": null, "password": "sesame-77"})", "\xFF\xFE\x00"})
	{
		SCOPED_TRACE(Damaged);
		Folder.Write(SavedUser, Damaged);
		StartEditor();
		EXPECT_FALSE(GetUser()->HasSavedUserData());
		EXPECT_TRUE(GetUser()->GetUserInfo().UserName.IsEmpty());
		EXPECT_THAT(TakeSdkLog(), Contains(HasSubstr("VelmorantUser.json is damaged")));
	}
	Remember();
	StartEditor();
	EXPECT_TRUE(GetUser()->HasSavedUserData()) << "signing in replaces it";
}

TEST_F(SavedUserData, ThatCannotBeWrittenIsReportedWithoutTheSecret)
{
	Folder.Write("UserConfig", "a file where the folder should be");
	StartEditor();
	Remember();
	EXPECT_FALSE(GetUser()->HasSavedUserData());
	EXPECT_THAT(TakeSdkLog(), Contains(HasSubstr("Error: The user could not be remembered in ")));
	EXPECT_THAT(WholeLog(), Not(HasSubstr("sesame-77")));
}

TEST_F(SavedUserData, GoesWithALoginThatIsNotToBeRemembered)
{
	StartEditor();
	Remember();
	Wait(0.0);
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("wrong")));
	Wait(0.0);
	EXPECT_TRUE(Folder.Exists(SavedUser)) << "a refused login changes nothing";

	SignIn();
	EXPECT_FALSE(Folder.Exists(SavedUser));
	EXPECT_FALSE(GetUser()->HasSavedUserData());
}

TEST_F(SavedUserData, GoesWithWhatAKilledLoginLeftOfIt)
{
	const std::string Leftover = "UserConfig/.velmorant-4711-1.tmp";
	StartEditor();
	Folder.Write(Leftover, R"({"userName": "ada", "password": "sesame-77"})");
	SignIn();
	EXPECT_FALSE(Folder.Exists(Leftover)) << "forgotten, although no file was kept";

	Folder.Write(Leftover, R"({"userName": "ada", "password": "sesame-77"})");
	StartEditor();
	EXPECT_FALSE(Folder.Exists(Leftover)) << "the next start";
}

TEST_F(SavedUserData, StaysWhenTheUserSignsOut)
{
	StartEditor();
	Remember();
	Wait(0.0);
	GetUser()->RequestUserLogout();
	StartEditor();
	EXPECT_TRUE(GetUser()->HasSavedUserData());
}

TEST_F(SavedUserData, IsNoneOfTheRunningModelsBusiness)
{
	Folder.Write(SavedUser, R"({"userName": "ada", "password": "sesame-77"})");
	StartEditor();
	EXPECT_THAT(ToUtf8(NewObject<UVelmorantUser>()->GetUserInfo().UserName), IsEmpty());
}

/** The same on a desktop with a secret store. */
class SavedUserInSecretStore : public SavedUserData
{
protected:
	SavedUserInSecretStore()
	{
		unsetenv("VELMORANT_NO_KEYRING");
		setenv("PATH", Store.GetPath().c_str(), 1);
	}

	~SavedUserInSecretStore() override
	{
		setenv("PATH", PathBefore.c_str(), 1);
		setenv("VELMORANT_NO_KEYRING", "1", 1);
	}

	std::string PathBefore = std::getenv("PATH");
	FFakeSecretStore Store = FFakeSecretStore(Folder);
};

TEST_F(SavedUserInSecretStore, IsThereInTheNextEditorAndOnNoDiskInClear)
{
	StartEditor();
	Remember();
	EXPECT_TRUE(GetUser()->HasSavedUserData());
	EXPECT_THAT(Store.GetKept(), HasSubstr("sesame-77"));
	EXPECT_EQ(Folder.Read(SavedUser), R"({"inSecretStore":true})");
	EXPECT_THAT(Store.GetCalls(), Not(HasSubstr("sesame-77")));

	StartEditor();
	ASSERT_TRUE(GetUser()->HasSavedUserData());
	EXPECT_TRUE(GetUser()->GetUserInfo().bRememberMe);
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().UserName), "ada");
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().Password), "sesame-77");

	SignIn();
	EXPECT_FALSE(Store.HasKept()) << "a login that is not to be remembered";
	EXPECT_FALSE(Folder.Exists(SavedUser));
}

TEST_F(SavedUserInSecretStore, IsNotAskedForUsersWhoAreNotRemembered)
{
	StartEditor();
	EXPECT_FALSE(GetUser()->HasSavedUserData());
	SignIn();
	EXPECT_EQ(Store.GetCalls(), "");
}

TEST_F(SavedUserInSecretStore, TakesOverWhatTheFileKept)
{
	Folder.Write(SavedUser, R"({"userName": "ada", "password": "sesame-77"})");
	StartEditor();
	ASSERT_TRUE(GetUser()->HasSavedUserData());
	Remember();
	EXPECT_THAT(Folder.Read(SavedUser), Not(HasSubstr("sesame-77")));
}

TEST_F(SavedUserInSecretStore, ThatDoesNotAnswerLeavesItToTheFile)
{
	const struct
	{
		const char* Tool;
		const char* Reason;
	} Cases[] = {
		{"echo No session >&2; exit 1", ": secret-tool ended with status 1: No session."},
		{"sleep 60", ": secret-tool gave no answer within 2 seconds."},
		{"", ": there is no program secret-tool."},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Reason);
		Store.Replace(Case.Tool);
		const auto Before = std::chrono::steady_clock::now();
		StartEditor();
		Remember();
		EXPECT_LT(std::chrono::steady_clock::now() - Before, std::chrono::seconds(20));
		EXPECT_TRUE(GetUser()->HasSavedUserData());
		EXPECT_THAT(TakeSdkLog(), Contains(AllOf(HasSubstr("Log: The user is remembered in "), HasSubstr(Case.Reason))));
		EXPECT_EQ(std::filesystem::status(Folder.GetNative(SavedUser)).permissions(), std::filesystem::perms(0600));
		EXPECT_THAT(WholeLog(), Not(HasSubstr("sesame-77")));

		StartEditor();
		EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().Password), "sesame-77");
		SignIn();
		EXPECT_FALSE(Folder.Exists(SavedUser));
		EXPECT_THAT(TakeSdkLog(), Not(Contains(HasSubstr("secret store")))) << "nothing of it is there";
	}
}

TEST_F(SavedUserInSecretStore, ThatIsClosedLaterIsTold)
{
	StartEditor();
	Remember();
	Store.Replace("echo Locked >&2; exit 1");
	StartEditor();
	EXPECT_FALSE(GetUser()->HasSavedUserData());
	EXPECT_THAT(TakeSdkLog(), Contains("Warning: The remembered user could not be read from the desktop's secret store: secret-tool ended with status 1: Locked. Sign in again."));

	// The file keeps a newer one now, and still tells of the older one in the store.
	GetUser()->RequestUserLogin(FVelmorantUserInformation(true, TEXT("ada"), TEXT("newer-78")));
	GetUser()->SaveUserData();
	StartEditor();
	EXPECT_EQ(ToUtf8(GetUser()->GetUserInfo().Password), "newer-78");
	TakeSdkLog();
	SignIn();
	EXPECT_THAT(TakeSdkLog(), Contains(AllOf(HasSubstr("Warning: The user is still remembered in the desktop's secret store: "), HasSubstr("Remove the item \"Velmorant sign-in\" there."))));
	EXPECT_FALSE(Folder.Exists(SavedUser));
}

TEST_F(SavedUserInSecretStore, ThatIsDamagedOrWasEmptiedCountsAsNone)
{
	StartEditor();
	Remember();
	for (const char* Damaged : {"{", "[]", R"({"userName": "ada"})"})
	{
		SCOPED_TRACE(Damaged);
		Store.Keep(Damaged);
		StartEditor();
		EXPECT_FALSE(GetUser()->HasSavedUserData());
		EXPECT_THAT(TakeSdkLog(), Contains(HasSubstr("secret store: what it keeps is damaged.")));
	}
	Store.Empty();
	StartEditor();
	EXPECT_FALSE(GetUser()->HasSavedUserData());
	SignIn();
	EXPECT_THAT(WholeLog(), Not(HasSubstr("still remembered"))) << "nothing is there to be removed";
}
