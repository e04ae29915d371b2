// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HAL/FileManager.h"
#include "HostFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace
{
	class HostFilesTest : public FEditorFilesTest
	{
	protected:
		~HostFilesTest() override { HostFiles::SetBeforeRename(nullptr); }

		void SetMode(std::string_view File, mode_t Mode) const { ASSERT_EQ(chmod(Folder.GetNative(File).c_str(), Mode), 0); }

		struct stat GetStatus(std::string_view File) const
		{
			struct stat Status = {};
			EXPECT_EQ(lstat(Folder.GetNative(File).c_str(), &Status), 0);
			return Status;
		}

		bool Write(std::string_view File, std::string_view Bytes) const { return HostFiles::Write(Folder.Get(File), Bytes); }

		std::string Read(std::string_view File) const
		{
			std::string Bytes;
			EXPECT_EQ(HostFiles::Read(Folder.Get(File), Bytes), HostFiles::ERead::Done);
			return Bytes;
		}

		std::vector<std::string> Find(std::string_view Directory, const TCHAR* Suffix) const
		{
			std::vector<std::string> Result;
			for (const std::string& File : ToUtf8(HostFiles::FindFiles(Folder.Get(Directory), Suffix)))
			{
				Result.push_back(std::filesystem::path(File).lexically_relative(Folder.GetNative()).string());
			}
			return Result;
		}
	};

	TEST_F(HostFilesTest, ReplacesAFileWithoutTouchingTheOldOne)
	{
		Folder.Write("File", "old");
		const ino_t Before = GetStatus("File").st_ino;
		std::ifstream OpenBefore(Folder.GetNative("File"));
		ASSERT_TRUE(Write("File", "new"));
		EXPECT_EQ(Folder.Read("File"), "new");
		EXPECT_NE(GetStatus("File").st_ino, Before) << "written in place: a crash could leave half of it";
		std::string Old;
		OpenBefore >> Old;
		EXPECT_EQ(Old, "old");
	}

	TEST_F(HostFilesTest, KeepsTheModeOfAnExistingFile)
	{
		Folder.Write("File", "old");
		SetMode("File", 0640);
		ASSERT_TRUE(Write("File", "new"));
		EXPECT_EQ(GetStatus("File").st_mode & 07777, 0640u);
	}

	TEST_F(HostFilesTest, KeepsTheOwnerWhereItMay)
	{
		if (geteuid() != 0)
		{
			GTEST_SKIP() << "only root may give files away";
		}
		Folder.Write("File", "old");
		ASSERT_EQ(chown(Folder.GetNative("File").c_str(), 1234, 1234), 0);
		ASSERT_TRUE(Write("File", "new"));
		EXPECT_EQ(GetStatus("File").st_uid, 1234u);
		EXPECT_EQ(GetStatus("File").st_gid, 1234u);
	}

	TEST_F(HostFilesTest, WritesThroughSymbolicLinks)
	{
		struct FCase
		{
			const char* Behaviour;
			const char* LinkTarget;
			const char* WrittenFile;
		};
		Folder.Write("elsewhere/Target", "old");
		const FCase Cases[] = {
			{"to a file", "elsewhere/Target", "elsewhere/Target"},
			{"to a file that does not exist yet", "elsewhere/Fresh", "elsewhere/Fresh"},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			std::filesystem::remove(Folder.GetNative("Link"));
			std::filesystem::create_symlink(Case.LinkTarget, Folder.GetNative("Link"));
			ASSERT_TRUE(Write("Link", "new"));
			EXPECT_TRUE(S_ISLNK(GetStatus("Link").st_mode));
			EXPECT_EQ(Folder.Read(Case.WrittenFile), "new");
		}
	}

	TEST_F(HostFilesTest, RefusesWhatMustNotBeReplaced)
	{
		Folder.Write("ReadOnly", "old");
		SetMode("ReadOnly", 0444);
		std::filesystem::create_directory(Folder.GetNative("Directory"));
		Folder.Write("Plain", "old");
		struct FCase
		{
			const char* Behaviour;
			const char* Path;
			const char* Message;
		};
		const FCase Cases[] = {
			{"a read-only file, even for root", "ReadOnly", "read-only"},
			{"a folder in the way", "Directory", "a folder stands"},
			{"a file where a folder is needed", "Plain/File", "the folder cannot be created"},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			EXPECT_FALSE(Write(Case.Path, "new"));
			EXPECT_NE(GetProblems().find(Case.Message), std::string::npos) << GetProblems();
		}
		EXPECT_EQ(Folder.Read("ReadOnly"), "old");
		EXPECT_EQ(Folder.Read("Plain"), "old");
		EXPECT_EQ(Folder.Count(), 3u) << "something was left behind";
		EXPECT_TRUE(HostFiles::Write(Folder.Get("ReadOnly"), "new", HostFiles::EReadOnly::Override));
		EXPECT_EQ(Folder.Read("ReadOnly"), "new");
	}

	TEST_F(HostFilesTest, AReadOnlyFileThatHoldsTheBytesAlreadyIsNoProblem)
	{
		Folder.Write("ReadOnly", "same");
		SetMode("ReadOnly", 0444);
		const auto Before = Age("ReadOnly");
		EXPECT_TRUE(Write("ReadOnly", "same"));
		EXPECT_EQ(std::filesystem::last_write_time(Folder.GetNative("ReadOnly")), Before);
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(HostFilesTest, ACrashBetweenWriteAndRenameLeavesTheOldFileAndIsTidiedUp)
	{
		Folder.Write("sub/File", "old");
		const int Status = Wait(Fork([this] {
			HostFiles::SetBeforeRename([](const char*, const char*) { _exit(77); });
			Write("sub/File", "new");
		}));
		ASSERT_EQ(WEXITSTATUS(Status), 77) << "the hook was not reached";
		EXPECT_EQ(Folder.Read("sub/File"), "old");
		EXPECT_EQ(Folder.Count("sub"), 2u) << "the crash should have left its temporary file";
		EXPECT_EQ(Find("sub", TEXT("")), std::vector<std::string>{"sub/File"});
		ASSERT_TRUE(Write("sub/File", "newer"));
		EXPECT_EQ(Folder.Read("sub/File"), "newer");
		EXPECT_EQ(Folder.Count("sub"), 1u);
	}

	TEST_F(HostFilesTest, TheNewFileIsCompleteBeforeTheOldOneGoes)
	{
		static std::string Seen;
		Seen.clear();
		Folder.Write("File", "old");
		HostFiles::SetBeforeRename([](const char* Temporary, const char* Target) {
			for (const char* Path : {Temporary, Target})
			{
				std::ifstream Stream(Path);
				Seen += std::string(std::istreambuf_iterator<char>(Stream), {}) + "|";
			}
		});
		ASSERT_TRUE(Write("File", "new"));
		EXPECT_EQ(Seen, "new|old|");
	}

	TEST_F(HostFilesTest, ListsWrittenFilesOnceInOrder)
	{
		Write("b", "1");
		Write("a", "1");
		Write("b", "2");
		EXPECT_EQ(ToUtf8(HostFiles::GetWrittenFiles()), (std::vector<std::string>{ToUtf8(Folder.Get("b")), ToUtf8(Folder.Get("a"))}));
	}

	TEST_F(HostFilesTest, FilesOfTheUsersSettingsAreForTheirOwnerOnly)
	{
		ASSERT_TRUE(Write("settings/sub/User.json", "{}"));
		ASSERT_TRUE(Write("project/File", "{}"));
		EXPECT_EQ(GetStatus("settings/sub/User.json").st_mode & 0777, 0600u);
		EXPECT_EQ(GetStatus("settings/sub").st_mode & 0777, 0700u);
		EXPECT_NE(GetStatus("project/File").st_mode & 0777, 0600u);
	}

	TEST_F(HostFilesTest, FindsFilesInAllFoldersSortedAndWithoutGoingInCircles)
	{
		Folder.Write("Content/b.json", "");
		Folder.Write("Content/A/c.json", "");
		Folder.Write("Content/A/c.txt", "");
		std::filesystem::create_directory_symlink("..", Folder.GetNative("Content/A/up"));
		EXPECT_EQ(Find("Content", TEXT(".json")), (std::vector<std::string>{"Content/A/c.json", "Content/b.json"}));
		EXPECT_EQ(Find("Missing", TEXT(".json")), std::vector<std::string>{});
	}

	TEST_F(HostFilesTest, AnOverlayShowsWritesAndLeavesTheDiskAlone)
	{
		Folder.Write("Content/kept.json", "disk");
		Folder.Write("Content/gone.json", "disk");
		HostFiles::BeginOverlay();
		EXPECT_TRUE(Write("Content/kept.json", "overlay"));
		EXPECT_TRUE(Write("Content/deep/new.json", "overlay"));
		EXPECT_TRUE(HostFiles::Delete(Folder.Get("Content/gone.json")));

		EXPECT_EQ(Read("Content/kept.json"), "overlay");
		EXPECT_EQ(Find("Content", TEXT(".json")), (std::vector<std::string>{"Content/deep/new.json", "Content/kept.json"}));
		EXPECT_TRUE(HostFiles::DirectoryExists(Folder.Get("Content/deep")));
		EXPECT_FALSE(HostFiles::FileExists(Folder.Get("Content/gone.json")));

		EXPECT_EQ(Folder.Read("Content/kept.json"), "disk");
		EXPECT_EQ(Folder.Read("Content/gone.json"), "disk");
		EXPECT_EQ(Folder.Count("Content"), 2u);
		EXPECT_TRUE(HostFiles::GetWrittenFiles().IsEmpty());

		const TArray<HostFiles::FPendingWrite> Pending = HostFiles::GetPendingWrites();
		ASSERT_EQ(Pending.Num(), 3);
		EXPECT_EQ(ToUtf8(Pending[0].Path), ToUtf8(Folder.Get("Content/deep/new.json")));
		EXPECT_EQ(Pending[0].Bytes, "overlay");
		EXPECT_TRUE(Pending[1].bDeleted);
		EXPECT_FALSE(Pending[2].bDeleted);
	}

	TEST_F(HostFilesTest, AnOverlayRefusesWhatTheDiskWouldRefuse)
	{
		Folder.Write("ReadOnly", "old");
		SetMode("ReadOnly", 0444);
		HostFiles::BeginOverlay();
		EXPECT_FALSE(Write("ReadOnly", "new"));
		EXPECT_NE(GetProblems().find("read-only"), std::string::npos);
	}

	TEST_F(HostFilesTest, WhatIsWrittenBackInAnOverlayIsNotPending)
	{
		Folder.Write("File", "disk");
		HostFiles::BeginOverlay();
		Write("File", "other");
		Write("File", "disk");
		EXPECT_TRUE(HostFiles::GetPendingWrites().IsEmpty());
	}

	TEST_F(HostFilesTest, AnOverlayEndsWithItsEditor)
	{
		HostFiles::BeginOverlay();
		Write("File", "overlay");
		Restart();
		EXPECT_FALSE(HostFiles::HasOverlay());
		EXPECT_FALSE(HostFiles::FileExists(Folder.Get("File")));
	}

	TEST_F(HostFilesTest, ALockKeepsOtherProcessesOutUntilTheLastOfItsNestedLocksGoes)
	{
		const auto IsFreeForOthers = [this] {
			return Wait(Fork([this] {
				const int Directory = open(Folder.GetNative().c_str(), O_RDONLY | O_DIRECTORY);
				_exit(flock(Directory, LOCK_EX | LOCK_NB) == 0 ? 0 : 1);
			})) == 0;
		};
		EXPECT_TRUE(IsFreeForOthers());
		{
			const HostFiles::FLock Outer(Folder.Get("File"));
			{
				const HostFiles::FLock Inner(Folder.Get("Other"));
				ASSERT_TRUE(Write("File", "a write within locks of its own process does not wait for them"));
			}
			EXPECT_FALSE(IsFreeForOthers());
		}
		EXPECT_TRUE(IsFreeForOthers());
	}

	TEST_F(HostFilesTest, ChecksBeforehandWhetherAFileCouldBeWritten)
	{
		Folder.Write("Config/Fine.ini", "");
		Folder.Write("Config/ReadOnly.ini", "");
		SetMode("Config/ReadOnly.ini", 0444);
		std::filesystem::create_directory(Folder.GetNative("Config/Folder.ini"));
		EXPECT_TRUE(HostFiles::CheckWritable(Folder.Get("Config/Fine.ini")));
		EXPECT_TRUE(HostFiles::CheckWritable(Folder.Get("New/Deep/File.ini")));
		EXPECT_EQ(GetProblems(), "");
		EXPECT_FALSE(HostFiles::CheckWritable(Folder.Get("Config/ReadOnly.ini")));
		EXPECT_FALSE(HostFiles::CheckWritable(Folder.Get("Config/Folder.ini")));
		EXPECT_FALSE(HostFiles::CheckWritable(Folder.Get("Config/Fine.ini/File.ini")));
		EXPECT_EQ(HostProblems::GetAll().Num(), 3);
		EXPECT_FALSE(Folder.Exists("New"));
	}

	TEST_F(HostFilesTest, TheFileManagerDeletesAndToleratesWhatIsNotThere)
	{
		Folder.Write("File", "");
		Folder.Write("ReadOnly", "");
		SetMode("ReadOnly", 0444);
		IFileManager& Files = IFileManager::Get();
		EXPECT_TRUE(Files.Delete(*Folder.Get("File")));
		EXPECT_FALSE(Files.FileExists(*Folder.Get("File")));
		EXPECT_TRUE(Files.Delete(*Folder.Get("File")));
		EXPECT_FALSE(Files.Delete(*Folder.Get("File"), true));
		EXPECT_FALSE(Files.Delete(*Folder.Get("ReadOnly")));
		EXPECT_TRUE(Files.Delete(*Folder.Get("ReadOnly"), false, true));
		EXPECT_FALSE(Folder.Exists("ReadOnly"));
	}

	TEST_F(HostFilesTest, TheFileManagerCopiesOverWhatMayBeReplaced)
	{
		const std::string Bytes("a\0b\n", 4);
		Folder.Write("Source", Bytes);
		Folder.Write("Old", "old");
		Folder.Write("ReadOnly", "old");
		SetMode("ReadOnly", 0444);
		IFileManager& Files = IFileManager::Get();
		EXPECT_EQ(Files.Copy(*Folder.Get("New/Deep/Copy"), *Folder.Get("Source")), static_cast<uint32>(COPY_OK));
		EXPECT_EQ(Folder.Read("New/Deep/Copy"), Bytes);
		EXPECT_EQ(Files.Copy(*Folder.Get("Old"), *Folder.Get("Source"), false), static_cast<uint32>(COPY_Fail));
		EXPECT_EQ(Folder.Read("Old"), "old");
		EXPECT_EQ(Files.Copy(*Folder.Get("Old"), *Folder.Get("Source")), static_cast<uint32>(COPY_OK));
		EXPECT_EQ(Folder.Read("Old"), Bytes);
		EXPECT_EQ(Files.Copy(*Folder.Get("ReadOnly"), *Folder.Get("Source")), static_cast<uint32>(COPY_Fail));
		EXPECT_EQ(Files.Copy(*Folder.Get("ReadOnly"), *Folder.Get("Source"), true, true), static_cast<uint32>(COPY_OK));
		EXPECT_EQ(Files.Copy(*Folder.Get("Old"), *Folder.Get("Nowhere")), static_cast<uint32>(COPY_Fail));
		EXPECT_EQ(Folder.Read("Old"), Bytes);
	}

	TEST_F(HostFilesTest, TheFileManagerFindsFilesByExtension)
	{
		for (const char* Name : {"Fonts/b.ttf", "Fonts/a.ttf", "Fonts/a.woff2", "Fonts/attf", "Fonts/Deep/c.ttf"})
		{
			Folder.Write(Name, "");
		}
		const auto Find = [this](const TCHAR* Extension) {
			TArray<FString> Found = {TEXT("before")};
			IFileManager::Get().FindFiles(Found, *Folder.Get("Fonts"), Extension);
			return ToUtf8(Found);
		};
		const std::vector<std::string> Fonts = {"before", "a.ttf", "b.ttf"};
		EXPECT_EQ(Find(TEXT(".ttf")), Fonts);
		EXPECT_EQ(Find(TEXT("ttf")), Fonts) << "the dot may be left out";
		EXPECT_EQ(Find(nullptr).size(), 5u);
	}
}
