// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HAL/PlatformApplicationMisc.h"
#include "HAL/PlatformProcess.h"
#include "HostClipboard.h"
#include "HostFiles.h"
#include "HostProcess.h"
#include "Misc/Paths.h"

namespace PathsTest
{
	class Paths : public FEditorFilesTest
	{
	};

	TEST_F(Paths, FoldersOfTheProjectEndWithASlash)
	{
		HostPaths::SetProjectFile(Folder.Get("x/../Tower.uproject"));
		const std::string Root = ToUtf8(Folder.Get());
		EXPECT_EQ(ToUtf8(FPaths::GetProjectFilePath()), Root + "/Tower.uproject");
		EXPECT_EQ(ToUtf8(FPaths::ProjectDir()), Root + "/");
		EXPECT_EQ(ToUtf8(FPaths::ProjectConfigDir()), Root + "/Config/");
		EXPECT_EQ(ToUtf8(FPaths::SourceConfigDir()), Root + "/Config/");
		EXPECT_EQ(ToUtf8(FPaths::ProjectContentDir()), Root + "/Content/");
		EXPECT_EQ(ToUtf8(FPaths::GeneratedConfigDir()), Root + "/Saved/Config/");
	}

	TEST_F(Paths, CombineSetsOneSlashAtEachSeam)
	{
		EXPECT_EQ(ToUtf8(FPaths::Combine(TEXT("/a"), FString(TEXT("b/")), TEXT("/c"), TEXT(""), TEXT("d"))), "/a/b/c/d");
		EXPECT_EQ(ToUtf8(FPaths::Combine(FString(), TEXT("b"))), "b");
	}

	TEST_F(Paths, FullPathsHaveNoDots)
	{
		EXPECT_EQ(ToUtf8(FPaths::ConvertRelativePathToFull(TEXT("/a/./b//../c/"))), "/a/c/");
		EXPECT_EQ(ToUtf8(FPaths::ConvertRelativePathToFull(TEXT("/../.."))), "/");
		EXPECT_EQ(ToUtf8(FPaths::ConvertRelativePathToFull(TEXT("a/b"))), (std::filesystem::current_path() / "a/b").string());
	}

	TEST_F(Paths, TheUsersFoldersFollowTheDesktopsConvention)
	{
		HostState::DestroyAll();
		setenv("XDG_CONFIG_HOME", Folder.GetNative("xdg").c_str(), 1);
		setenv("XDG_STATE_HOME", Folder.GetNative("state").c_str(), 1);
		EXPECT_EQ(ToUtf8(FString(FPlatformProcess::UserSettingsDir())), ToUtf8(Folder.Get("xdg/velmorant/")));
		EXPECT_EQ(ToUtf8(HostPaths::GetUserStateDir()), ToUtf8(Folder.Get("state/velmorant/")));
		HostState::DestroyAll();
		unsetenv("XDG_CONFIG_HOME");
		setenv("XDG_STATE_HOME", "relative", 1);
		const char* Home = std::getenv("HOME");
		const std::string OldHome = Home != nullptr ? Home : "";
		setenv("HOME", Folder.GetNative("home").c_str(), 1);
		EXPECT_EQ(ToUtf8(FString(FPlatformProcess::UserSettingsDir())), ToUtf8(Folder.Get("home/.config/velmorant/")));
		EXPECT_EQ(ToUtf8(HostPaths::GetUserStateDir()), ToUtf8(Folder.Get("home/.local/state/velmorant/")));
		HostFiles::Write(HostPaths::GetUserStateDir() + TEXT("Record"), "private");
		EXPECT_EQ(std::filesystem::status(Folder.GetNative("home/.local/state/velmorant/Record")).permissions(), std::filesystem::perms(0600));
		EXPECT_EQ(std::filesystem::status(Folder.GetNative("home/.local/state/velmorant")).permissions(), std::filesystem::perms(0700));
		unsetenv("XDG_STATE_HOME");
		setenv("HOME", OldHome.c_str(), 1);
	}

	TEST_F(Paths, OpenedAddressesAndCopiedTextsBelongToOneEditor)
	{
		FString Error = TEXT("old");
		FPlatformProcess::LaunchURL(TEXT("https://example.com/a"), nullptr, &Error);
		FPlatformProcess::LaunchURL(TEXT("https://example.com/b"), nullptr, nullptr);
		EXPECT_EQ(ToUtf8(HostProcess::GetOpenedUrls()), (std::vector<std::string>{"https://example.com/a", "https://example.com/b"}));
		EXPECT_TRUE(Error.IsEmpty());

		FPlatformApplicationMisc::ClipboardCopy(TEXT("text"));
		FPlatformApplicationMisc::ClipboardCopy(TEXT(""));
		FString Pasted = TEXT("old");
		FPlatformApplicationMisc::ClipboardPaste(Pasted);
		EXPECT_TRUE(Pasted.IsEmpty());
		EXPECT_EQ(ToUtf8(HostClipboard::GetHistory()), (std::vector<std::string>{"text", ""}));

		Restart();
		EXPECT_TRUE(HostProcess::GetOpenedUrls().IsEmpty());
		EXPECT_TRUE(HostClipboard::GetHistory().IsEmpty());
	}
}
