// Copyright Velmorant. All Rights Reserved.

#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"

#include <filesystem>

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
	const char* const SavedUser = "UserConfig/VelmorantUser.json";
	const FVelmorantUserInformation Ada(true, TEXT("ada"), TEXT("sesame-77"));
}

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
