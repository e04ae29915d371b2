// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HAL/FileManager.h"
#include "HostFiles.h"
#include "HostQuestions.h"
#include "HostStaging.h"

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace FilesOnDisk
{
	std::string Flushed; // a letter for each flush: of a file or of a directory
	bool bFlushFails = false;

	const char* const LeftReadOnly = "the file is read-only and was left as it is. Make it writable, or check it out in version control.\n";

	class FilesOnDisk : public FEditorFilesTest
	{
	protected:
		~FilesOnDisk() override { HostFiles::SetBeforeRename(nullptr); }

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

	TEST_F(FilesOnDisk, ReplacesAFileWithoutTouchingTheOldOne)
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

	TEST_F(FilesOnDisk, KeepsTheModeOfAnExistingFile)
	{
		for (const mode_t Mode : {0640u, 01666u, 0200u})
		{
			Folder.Write("File", "old");
			SetMode("File", Mode);
			ASSERT_TRUE(Write("File", "new"));
			EXPECT_EQ(GetStatus("File").st_mode & 07777, Mode);
			std::filesystem::remove(Folder.GetNative("File"));
		}
	}

	TEST_F(FilesOnDisk, KeepsTheOwnerWhereItMay)
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

	TEST_F(FilesOnDisk, WritesThroughSymbolicLinks)
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

	TEST_F(FilesOnDisk, RefusesWhatMustNotBeReplaced)
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
			{"a read-only file, even for root", "ReadOnly", LeftReadOnly},
			{"a folder in the way", "Directory", "a folder stands where a file is to be written. Move the folder away.\n"},
			{"a file where a folder is needed", "Plain/File", "the folder cannot be created: Not a directory. Check its path and permissions.\n"},
			{"what is no file at all", "Pipe", "what stands where a file is to be written is no ordinary file. Move it away.\n"},
		};
		ASSERT_EQ(mkfifo(Folder.GetNative("Pipe").c_str(), 0666), 0);
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			EXPECT_FALSE(Write(Case.Path, "new"));
			EXPECT_EQ(GetProblems(), Case.Message);
			EXPECT_EQ(HostProblems::GetNotWritten().Num(), 1);
		}
		EXPECT_EQ(HostFiles::GetKind(Folder.Get("Pipe")), HostFiles::EKind::Other);
		EXPECT_EQ(Folder.Read("ReadOnly"), "old");
		EXPECT_EQ(Folder.Read("Plain"), "old");
		EXPECT_EQ(Folder.Count(), 4u) << "something was left behind";
		EXPECT_TRUE(HostFiles::Write(Folder.Get("ReadOnly"), "new", HostFiles::EReadOnly::Override));
		EXPECT_EQ(Folder.Read("ReadOnly"), "new");
	}

	TEST_F(FilesOnDisk, AReadOnlyFileThatHoldsTheBytesAlreadyIsNoProblem)
	{
		Folder.Write("ReadOnly", "same");
		SetMode("ReadOnly", 0444);
		const auto Before = Age("ReadOnly");
		EXPECT_TRUE(Write("ReadOnly", "same"));
		EXPECT_EQ(std::filesystem::last_write_time(Folder.GetNative("ReadOnly")), Before);
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(FilesOnDisk, ACrashBetweenWriteAndRenameLeavesTheOldFileAndIsTidiedUp)
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

	TEST_F(FilesOnDisk, WhatIsPreparedTakesItsPlaceInOneStep)
	{
		Folder.Write("Stage/File", "new");
		Folder.Write("Stage/Whole/In/It", "new");
		Folder.Write("sub/File", "old");
		SetMode("sub/File", 0604);
		EXPECT_TRUE(HostStaging::Move(Folder.Get("Stage/File"), Folder.Get("sub/File")));
		EXPECT_EQ(Folder.Read("sub/File"), "new");
		EXPECT_EQ(std::filesystem::status(Folder.GetNative("sub/File")).permissions(), std::filesystem::perms(0604)) << "as the file before";
		EXPECT_TRUE(HostStaging::Move(Folder.Get("Stage/Whole"), Folder.Get("not/there/yet")));
		EXPECT_EQ(Folder.Read("not/there/yet/In/It"), "new");
		EXPECT_EQ(Folder.Count("Stage"), 0u);
		EXPECT_EQ(GetProblems(), "");

		SetMode("sub/File", 0444);
		Folder.Write("Stage/File", "newer");
		Folder.Write("Stage/Folder/File", "newer");
		EXPECT_FALSE(HostStaging::Move(Folder.Get("Stage/File"), Folder.Get("sub/File")));
		EXPECT_FALSE(HostStaging::Move(Folder.Get("Stage/Folder"), Folder.Get("not/there/yet"))) << "a folder replaces none";
		EXPECT_FALSE(HostStaging::Move(Folder.Get("Nothing"), Folder.Get("sub/Other")));
		const std::string Problems = GetProblems();
		EXPECT_NE(Problems.find("the file is read-only and was left as it is"), std::string::npos) << Problems;
		EXPECT_NE(Problems.find("what was prepared for this place cannot be put there: No such file or directory"), std::string::npos) << Problems;
		EXPECT_EQ(Folder.Read("sub/File"), "new");
	}

	TEST_F(FilesOnDisk, AFolderIsDeletedWithAllInItAndLinksLeadNowhere)
	{
		Folder.Write("Stage/a/b/File", "");
		Folder.Write("Kept/File", "kept");
		std::filesystem::create_symlink(Folder.GetNative("Kept"), Folder.GetNative("Stage/Link"));
		EXPECT_TRUE(HostStaging::DeleteDirectory(Folder.Get("Stage")));
		EXPECT_FALSE(Folder.Exists("Stage"));
		EXPECT_EQ(Folder.Read("Kept/File"), "kept");
		EXPECT_TRUE(HostStaging::DeleteDirectory(Folder.Get("Stage"))) << "it is not there";
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(FilesOnDisk, WhatOthersCallTemporaryIsTheirs)
	{
		const std::vector<std::string> Theirs = {"Config/.velmorant-1-.tmp", "Config/.velmorant-1-2.tmp~", "Config/.velmorant-1-x.tmp", "Config/.velmorant-notes.tmp", "Config/.velmorant.tmp", "Config/File.ini.tmp", "Config/a.velmorant-1-2.tmp"};
		for (const std::string& File : Theirs)
		{
			Folder.Write(File, "theirs");
		}
		Folder.Write("Config/.velmorant-1-2.tmp", "left over");
		ASSERT_TRUE(Write("Config/File.ini", "new"));
		std::vector<std::string> Files = Theirs;
		Files.insert(Files.end() - 2, "Config/File.ini");
		EXPECT_EQ(Find("Config", TEXT("")), Files);
		EXPECT_EQ(Folder.Count("Config"), Files.size());
		EXPECT_EQ(Folder.Read(Theirs[0]), "theirs");
	}

	TEST_F(FilesOnDisk, AWriteThatFailsHalfWayIsToldEachTimeAndLeavesNothing)
	{
		std::vector<std::string> Told;
		HostProblems::SetNotWrittenListener([&Told](const FHostProblem& Problem) { Told.push_back(ToUtf8(HostProblems::ToString(Problem))); });
		HostFiles::SetBeforeRename([](const char*, const char* Target) { std::filesystem::create_directory(Target); }); // nothing can be renamed over it
		for (int Attempt = 0; Attempt < 2; ++Attempt)
		{
			std::filesystem::remove(Folder.GetNative("sub/File"));
			EXPECT_FALSE(Write("sub/File", "new"));
			EXPECT_EQ(Folder.Count("sub"), 1u);
		}
		const std::string Expected = Folder.GetNative("sub/File").string() + ": the file cannot be written and is as it was: Is a directory. Check free space and the permissions of its folder.";
		EXPECT_EQ(Told, (std::vector<std::string>{Expected, Expected}));
		EXPECT_EQ(HostProblems::GetAll().Num(), 1) << "programs print it once";
		EXPECT_EQ(HostProblems::GetNotWritten().Num(), 2);
		EXPECT_TRUE(HostFiles::GetWrittenFiles().IsEmpty());
	}

	TEST_F(FilesOnDisk, AsksBeforeAReadOnlyFileOfAProjectUnderVersionControlIsWritten)
	{
		const struct
		{
			const char* Behaviour;
			const char* Marker; // below the folder in which the project is
			const char* Command;
			const char* Answer; // null: nobody answers
			const char* File;
			const char* Question; // its choices; empty: none
			const char* Problem; // empty: written
		} Cases[] = {
			{"no version control", nullptr, nullptr, "Make Writable", "Project/File", "", LeftReadOnly},
			{"nobody answers", "Project/.git/HEAD", nullptr, nullptr, "Project/File", "Make Writable,Leave", LeftReadOnly},
			{"made writable", "Project/.git", nullptr, "Make Writable", "Project/sub/File", "Make Writable,Leave", ""},
			{"a working copy of folders above", ".svn/entries", nullptr, "Make Writable", "Project/File", "Make Writable,Leave", ""},
			{"other systems", "Project/.hg/store", nullptr, "Make Writable", "Project/File", "Make Writable,Leave", ""},
			{"yet other systems", "Project/.p4config", nullptr, "Make Writable", "Project/File", "Make Writable,Leave", ""},
			{"left alone", "Project/.git", nullptr, "Leave", "Project/File", "Make Writable,Leave", LeftReadOnly},
			{"not of the project", "Project/.git", nullptr, "Make Writable", "Projects/File", "", LeftReadOnly},
			{"checked out, whatever the file is called", nullptr, "chmod u+w", "Check Out", "Project/$x \"y' z", "Check Out,Make Writable,Leave", ""},
			{"a command that runs in the project's folder and prints", nullptr, "echo told; test -d sub && chmod 644", "Check Out", "Project/sub/File", "Check Out,Make Writable,Leave", ""},
			{"a command that fails", "Project/.git", "false", "Check Out", "Project/File", "Check Out,Make Writable,Leave", "the file was not checked out, \"false\" ended with status 1. Check it out by hand, then try again.\n"},
			{"a command that is ended", nullptr, "kill -9 $$;", "Check Out", "Project/File", "Check Out,Make Writable,Leave", "the file was not checked out, \"kill -9 $$;\" ended with status 137. Check it out by hand, then try again.\n"},
			{"a command that does nothing", nullptr, "true", "Check Out", "Project/File", "Check Out,Make Writable,Leave", LeftReadOnly},
			{"another version comes", nullptr, "sed -i s/old/odd/", "Check Out", "Project/File", "Check Out,Make Writable,Leave", "the file was not written: checking it out brought another version of it. Open the project again, then try again.\n"},
		};
		for (const auto& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostState::DestroyAll();
			HostPaths::SetProjectDir(Folder.Get("Project"));
			HostPaths::SetUserSettingsDir(Folder.Get("settings"));
			HostConfig::Boot();
			std::filesystem::create_directories(Folder.GetNative("Project/sub"));
			if (Case.Marker != nullptr)
			{
				Folder.Write(Case.Marker, "");
			}
			if (Case.Command != nullptr)
			{
				Folder.Write("Project/Config/DefaultEditor.ini", std::string("[Velmorant.VersionControl]\nCheckOutCommand=") + Case.Command + "\n");
			}
			if (Case.Answer != nullptr)
			{
				HostQuestions::Enqueue(FName(TEXT("ReadOnlyFile")), {FString(Case.Answer), {}});
			}
			Folder.Write(Case.File, "old");
			SetMode(Case.File, 0444);
			const bool bWritten = *Case.Problem == '\0';
			EXPECT_EQ(Write(Case.File, "new"), bWritten) << GetProblems();
			EXPECT_EQ(Folder.Read(Case.File) == "new", bWritten);
			EXPECT_EQ(GetProblems(), Case.Problem);
			EXPECT_EQ((GetStatus(Case.File).st_mode & 0777) == 0644u, bWritten) << "nobody else may write it";
			std::string Asked;
			for (const FAskedQuestion& Each : HostQuestions::GetAsked())
			{
				Asked += ToUtf8(FString::Join(Each.Question.Choices, TEXT(",")));
				EXPECT_EQ(ToUtf8(Each.Question.Message.ToString()), Folder.GetNative(Case.File).string() + " is read-only. What is to be done before it is written?");
			}
			EXPECT_EQ(Asked, Case.Question);
			for (const auto& Entry : std::filesystem::directory_iterator(Folder.GetNative()))
			{
				std::filesystem::remove_all(Entry.path());
			}
		}
	}

	TEST_F(FilesOnDisk, AFileThatGoesDuringTheQuestionIsNotWritten)
	{
		Folder.Write(".git", "");
		Folder.Write("File", "old");
		SetMode("File", 0444);
		HostQuestions::SetResponder([this](const FHostQuestion&) {
			std::filesystem::remove(Folder.GetNative("File"));
			return FHostAnswer{TEXT("Make Writable"), {}};
		});
		EXPECT_FALSE(Write("File", "new"));
		EXPECT_EQ(GetProblems(), "the file cannot be made writable: No such file or directory. Check whose file it is.\n");
	}

	TEST_F(FilesOnDisk, AsksNothingWhereNothingIsAtStake)
	{
		Folder.Write(".git", "");
		Folder.Write("File", "old");
		EXPECT_TRUE(Write("File", "new"));
		EXPECT_TRUE(Write("New", "new"));
		SetMode("File", 0444);
		EXPECT_TRUE(Write("File", "new")) << "it holds these bytes already";
		EXPECT_TRUE(HostFiles::Write(Folder.Get("File"), "newer", HostFiles::EReadOnly::Override));
		HostFiles::CheckWritable(Folder.Get("File"));
		HostFiles::BeginOverlay();
		EXPECT_FALSE(Write("File", "overlay"));
		EXPECT_TRUE(HostQuestions::GetAsked().IsEmpty());
		EXPECT_EQ(GetStatus("File").st_mode & 0777, 0444u);
	}

	TEST_F(FilesOnDisk, ReadsWhatIsThereAndSaysWhatIsNot)
	{
		Folder.Write("File", "text");
		std::string Bytes = "left over";
		EXPECT_EQ(HostFiles::Read(Folder.Get("Missing"), Bytes), HostFiles::ERead::Missing);
		EXPECT_EQ(Bytes, "");
		EXPECT_EQ(HostFiles::Read(Folder.Get("File/Below"), Bytes), HostFiles::ERead::Missing);
		EXPECT_EQ(GetProblems(), "");
		EXPECT_EQ(HostFiles::Read(Folder.Get(), Bytes), HostFiles::ERead::Failed);
		EXPECT_TRUE(HostProblems::GetNotWritten().IsEmpty());
		std::filesystem::create_symlink("Loop", Folder.GetNative("Loop"));
		EXPECT_EQ(HostFiles::Read(Folder.Get("Loop"), Bytes), HostFiles::ERead::Failed);
		EXPECT_EQ(GetProblems(), "a folder stands where a file is to be read. Move the folder away.\nthe file cannot be read: Too many levels of symbolic links. Check its permissions.\n");
		std::ifstream Endless("/proc/filesystems"); // the system says that it is empty
		EXPECT_EQ(HostFiles::Read(TEXT("/proc/filesystems"), Bytes), HostFiles::ERead::Done);
		EXPECT_EQ(Bytes, std::string(std::istreambuf_iterator<char>(Endless), {}));
	}

	TEST_F(FilesOnDisk, ResolvesPathsToWhereTheyLead)
	{
		Folder.Write("Real/File", "");
		std::filesystem::create_directory_symlink("Real", Folder.GetNative("Link"));
		std::filesystem::create_symlink("Link/New", Folder.GetNative("Dangling"));
		std::filesystem::create_symlink(Folder.GetNative("Nowhere/New"), Folder.GetNative("Absolute"));
		std::filesystem::create_symlink("Loop", Folder.GetNative("Loop"));
		const std::string Root = Folder.GetNative().string();
		const std::pair<std::string, std::string> Cases[] = {
			{Root + "/Link/File", Root + "/Real/File"},
			{Root + "/Link/New/Deep", Root + "/Real/New/Deep"},
			{Root + "/Dangling", Root + "/Real/New"},
			{Root + "/Absolute", Root + "/Nowhere/New"},
			{Root + "/Loop", Root + "/Loop"},
			{Root + "//a/./b/../c/", Root + "/a/c"},
			{Root + "\\Link\\File", Root + "/Real/File"},
			{"/../../missing", "/missing"},
			{"/", "/"},
			{"missing.txt", std::filesystem::current_path().string() + "/missing.txt"},
		};
		for (const auto& [Path, Expected] : Cases)
		{
			EXPECT_EQ(ToUtf8(HostFiles::Resolve(FString(UTF8_TO_TCHAR(Path.c_str())))), Expected) << Path;
		}
	}

	TEST_F(FilesOnDisk, TheNewFileIsCompleteBeforeTheOldOneGoes)
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

	TEST_F(FilesOnDisk, WhatCannotBeWrittenToTheEndOrFlushedIsNotWritten)
	{
		Flushed.clear();
		ASSERT_TRUE(Write("File", "old"));
		EXPECT_EQ(Flushed, "fd") << "the bytes, and then the name";
		rlimit Usual = {};
		getrlimit(RLIMIT_FSIZE, &Usual);
		const rlimit Tight = {2, Usual.rlim_max};
		std::signal(SIGXFSZ, SIG_IGN);
		for (const auto& [Limit, Why] : {std::pair(Usual, "Input/output error"), std::pair(Tight, "File too large")})
		{
			HostProblems::Clear();
			bFlushFails = true;
			setrlimit(RLIMIT_FSIZE, &Limit);
			const bool bWritten = Write("File", "new");
			setrlimit(RLIMIT_FSIZE, &Usual);
			bFlushFails = false;
			EXPECT_FALSE(bWritten) << Why;
			EXPECT_EQ(GetProblems(), std::string("the file cannot be written and is as it was: ") + Why + ". Check free space and the permissions of its folder.\n");
			EXPECT_EQ(Folder.Read("File"), "old");
			EXPECT_EQ(Folder.Count(), 1u);
		}
	}

	TEST_F(FilesOnDisk, WritesWithoutAStandardInput)
	{
		std::filesystem::create_directory(Folder.GetNative("sub"));
		const int Status = Wait(Fork([this] {
			const HostFiles::FLock Lock(Folder.Get("sub/File"));
			close(STDIN_FILENO); // the next file is number 0: in sub the new one, elsewhere the lock
			bool bLocked = false;
			{
				const HostFiles::FLock Other(Folder.Get("File"));
				bLocked = fcntl(STDIN_FILENO, F_GETFD) >= 0;
			}
			_exit(bLocked && Write("File", "new") && Write("sub/File", "new") && Folder.Read("File") == Folder.Read("sub/File") && HostProblems::GetAll().IsEmpty() ? 0 : 1);
		}));
		EXPECT_EQ(Status, 0);
	}

	TEST_F(FilesOnDisk, ListsWrittenFilesOnceInOrder)
	{
		Write("b", "1");
		Write("a", "1");
		Write("b", "2");
		EXPECT_EQ(ToUtf8(HostFiles::GetWrittenFiles()), (std::vector<std::string>{ToUtf8(Folder.Get("b")), ToUtf8(Folder.Get("a"))}));
	}

	TEST_F(FilesOnDisk, FilesOfTheUsersSettingsAreForTheirOwnerOnly)
	{
		ASSERT_TRUE(Write("settings/sub/User.json", "{}"));
		ASSERT_TRUE(Write("project/File", "{}"));
		EXPECT_EQ(GetStatus("settings/sub/User.json").st_mode & 0777, 0600u);
		EXPECT_EQ(GetStatus("settings/sub").st_mode & 0777, 0700u);
		EXPECT_NE(GetStatus("project/File").st_mode & 0777, 0600u);
		SetMode("settings/sub/User.json", 0644);
		ASSERT_TRUE(Write("settings/sub/User.json", "{ }"));
		EXPECT_EQ(GetStatus("settings/sub/User.json").st_mode & 0777, 0600u) << "who could read it before cannot any longer";
	}

	TEST_F(FilesOnDisk, FindsFilesInAllFoldersSortedAndWithoutGoingInCircles)
	{
		Folder.Write("Content/b.json", "");
		Folder.Write("Content/A/c.json", "");
		Folder.Write("Content/A/c.txt", "");
		std::filesystem::create_directory_symlink("..", Folder.GetNative("Content/A/up"));
		EXPECT_EQ(Find("Content", TEXT(".json")), (std::vector<std::string>{"Content/A/c.json", "Content/b.json"}));
		EXPECT_EQ(Find("Missing", TEXT(".json")), std::vector<std::string>{});
		Folder.Write("Odd/T\xFCr", "");
		EXPECT_EQ(Find("Odd", TEXT("r")), std::vector<std::string>{}) << "nothing could open it";
		ASSERT_EQ(HostProblems::GetAll().Num(), 1);
		EXPECT_EQ(ToUtf8(HostProblems::GetAll()[0].File), ToUtf8(Folder.Get("Odd")) + "/T\uFFFD") << "a name is told up to where it is no text";
		EXPECT_EQ(ToUtf8(HostFiles::FindFilesIn(Folder.Get("Content"), TEXT("json"))), std::vector<std::string>{ToUtf8(Folder.Get("Content/b.json"))});
		Folder.Write("Content/0/File", "");
		std::filesystem::create_directory_symlink("A", Folder.GetNative("Content/Z"));
		EXPECT_EQ(ToUtf8(HostFiles::FindDirectories(Folder.Get("Content"))), ToUtf8(TArray<FString>{Folder.Get("Content/0"), Folder.Get("Content/A"), Folder.Get("Content/Z")}));
	}

	TEST_F(FilesOnDisk, AnOverlayShowsWritesAndLeavesTheDiskAlone)
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
		EXPECT_EQ(*Pending[0].Bytes, "overlay");
		EXPECT_TRUE(Pending[1].bDeleted);
		EXPECT_FALSE(Pending[2].bDeleted);
	}

	TEST_F(FilesOnDisk, AnOverlayKnowsFoldersAndForgetsWhatIsDeleted)
	{
		using EKind = HostFiles::EKind;
		Folder.Write("Content/disk.json", "disk");
		HostFiles::BeginOverlay();
		Write("Content/New/Deep/a.json", "1");
		Write("Content/New.txt", "1");
		const std::pair<const char*, EKind> Kinds[] = {{"Content/New", EKind::Directory}, {"Content/Ne", EKind::Missing}, {"Content/New.txt", EKind::File}, {"Content/disk.json", EKind::File}};
		for (const auto& [Path, Kind] : Kinds)
		{
			EXPECT_EQ(HostFiles::GetKind(Folder.Get(Path)), Kind) << Path;
		}
		EXPECT_EQ(ToUtf8(HostFiles::FindFilesIn(Folder.Get("Content"), TEXT(".json"))), std::vector<std::string>{ToUtf8(Folder.Get("Content/disk.json"))});
		EXPECT_EQ(Find("Content", TEXT(".json")).size(), 2u);
		std::filesystem::create_directory_symlink("Content", Folder.GetNative("Link"));
		EXPECT_EQ(ToUtf8(HostFiles::FindFilesIn(Folder.Get("Link"), TEXT(".txt"))), std::vector<std::string>{ToUtf8(Folder.Get("Link/New.txt"))}) << "answers begin as the question did";

		std::string Bytes = "left over";
		const uint32 NumChanges = HostFiles::GetNumChanges(Folder.Get("Content/New/Deep/a.json"));
		EXPECT_TRUE(HostFiles::Delete(Folder.Get("Content/New/Deep/a.json")));
		EXPECT_GT(HostFiles::GetNumChanges(Folder.Get("Content/New/Deep/a.json")), NumChanges);
		EXPECT_EQ(HostFiles::GetKind(Folder.Get("Content/New")), EKind::Missing);
		EXPECT_EQ(HostFiles::Read(Folder.Get("Content/New/Deep/a.json"), Bytes), HostFiles::ERead::Missing);
		EXPECT_EQ(Bytes, "");
		EXPECT_TRUE(HostFiles::Delete(Folder.Get("Content/disk.json")));
		EXPECT_EQ(HostFiles::GetPendingWrites().Num(), 2) << "what was never there is not deleted";
		EXPECT_TRUE(Write("Content/disk.json", "disk"));
		EXPECT_EQ(Read("Content/disk.json"), "disk");
		EXPECT_EQ(HostFiles::GetPendingWrites().Num(), 1);
		EXPECT_FALSE(Folder.Exists("Made"));
	}

	TEST_F(FilesOnDisk, AnOverlayRefusesWhatTheDiskWouldRefuse)
	{
		Folder.Write("ReadOnly", "old");
		SetMode("ReadOnly", 0444);
		HostFiles::BeginOverlay();
		EXPECT_FALSE(Write("ReadOnly", "new"));
		EXPECT_EQ(GetProblems(), LeftReadOnly);
	}

	TEST_F(FilesOnDisk, AnOverlayEndsWithItsEditor)
	{
		HostFiles::BeginOverlay();
		Write("File", "overlay");
		Restart();
		EXPECT_FALSE(HostFiles::HasOverlay());
		EXPECT_FALSE(HostFiles::FileExists(Folder.Get("File")));
	}

	TEST_F(FilesOnDisk, ALockKeepsOtherProcessesOutUntilTheLastOfItsNestedLocksGoes)
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

	TEST_F(FilesOnDisk, ChecksBeforehandWhetherAFileCouldBeWritten)
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
		EXPECT_EQ(GetProblems(), std::string(LeftReadOnly) + "a folder stands where a file is to be written. Move the folder away.\nthe file cannot be written, its folder does not permit it. Check the permissions of the folder.\n");
		EXPECT_FALSE(Folder.Exists("New"));
	}

	TEST_F(FilesOnDisk, TheFileManagerDeletesAndToleratesWhatIsNotThere)
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
		HostProblems::Clear();
		EXPECT_FALSE(Files.Delete(TEXT("/proc/self/status"), false, true));
		EXPECT_EQ(GetProblems(), "the file cannot be deleted: Operation not permitted. Check the permissions of its folder.\n");
	}

	TEST_F(FilesOnDisk, TheFileManagerCopiesOverWhatMayBeReplaced)
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

	TEST_F(FilesOnDisk, TheFileManagerFindsFilesByExtension)
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

/** In place of the system's: tells what is flushed, and fails when it is to, as on a broken disk. */
extern "C" int fsync(int File)
{
	struct stat Status = {};
	fstat(File, &Status);
	FilesOnDisk::Flushed += S_ISDIR(Status.st_mode) ? 'd' : 'f';
	errno = EIO;
	return FilesOnDisk::bFlushFails ? -1 : 0;
}
