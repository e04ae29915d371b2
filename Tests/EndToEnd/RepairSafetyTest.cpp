// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionCheck.h"
#include "CollisionIni.h"
#include "EditorHost.h"
#include "HostFiles.h"
#include "HostNotifications.h"
#include "HostProblems.h"
#include "ProjectOnDisk.h"

#include <sys/wait.h>
#include <unistd.h>

using namespace CollisionIni;

class RepairSafety : public FProjectOnDisk
{
protected:
	RepairSafety() { MakeProject(); }
};

TEST_F(RepairSafety, RepairsAtOnceAddTheLinesOnce)
{
	for (int Round = 0; Round < 3; ++Round)
	{
		WriteIni("[Other]\nKey=1\n");
		{
			FProgramRun First({"check", GetProject(), "--repair"}, GetEnvironment());
			FProgramRun Second({"check", GetProject(), "--repair"}, GetEnvironment());
			FProgramRun Third({"check", GetProject(), "--repair"}, GetEnvironment());
			EXPECT_EQ(First.Wait().ExitStatus, 0);
			EXPECT_EQ(Second.Wait().ExitStatus, 0);
			EXPECT_EQ(Third.Wait().ExitStatus, 0);
		}
		EXPECT_EQ(CountOf(ReadIni(), ProfileLine), 1u) << ReadIni();
		EXPECT_EQ(CountOf(ReadIni(), ChannelLine), 1u);
		EXPECT_EQ(CountOf(ReadIni(), SectionLine), 1u);
		EXPECT_EQ(ReadIni().rfind("[Other]\nKey=1\n", 0), 0u);
	}
}

TEST_F(RepairSafety, ACrashBeforeTheRenameLeavesTheOldFile)
{
	const std::string Before = SectionLine + GlassLine;
	WriteIni(Before);
	const pid_t Child = fork();
	if (Child == 0)
	{
		FEditorHostOptions Options;
		Options.Project = Folder.Get("Project/Test.uproject");
		Options.UserSettingsDir = Folder.Get("UserConfig");
		const FEditorHost Editor(Options);
		HostFiles::SetBeforeRename([](const char*, const char*) { _exit(42); });
		HostNotifications::PressButton(TEXT("Add to Project Config"));
		_exit(0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	ASSERT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 42) << "the process did not get as far as the rename";
	EXPECT_EQ(ReadIni(), Before);

	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
	EXPECT_EQ(ReadIni(), Before + ProfileLine + ChannelLine);
	EXPECT_EQ(Folder.Count("Project/Config"), 2u) << "what the crash left is cleared away";
}

TEST_F(RepairSafety, WhatOtherProgramsPutInThePlaceOfTheFileIsRepairedInstead)
{
	static int NumLeft = 0;
	static std::string Theirs;
	const struct
	{
		const char* Behaviour;
		void (*Between)(const char* Temporary, const char* Target);
		std::string Theirs;
	} Cases[] = {
		{"another file under its name", [](const char*, const char* Target) { std::ofstream(std::string(Target) + ".new") << Theirs; std::filesystem::rename(std::string(Target) + ".new", Target); }, "[Foreign]\nKey=1\n" + SectionLine + GlassLine},
		{"as many bytes, in the same file", [](const char*, const char* Target) { std::ofstream(Target) << Theirs; }, Replace(SectionLine + GlassLine, "Balustrades", "balustrades")},
		{"as many bytes, and the old time", [](const char*, const char* Target) { const auto Time = std::filesystem::last_write_time(Target); std::ofstream(Target) << Theirs; std::filesystem::last_write_time(Target, Time); }, Replace(SectionLine + GlassLine, "Balustrades", "balustrades")},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(SectionLine + GlassLine);
		Theirs = Case.Theirs;
		NumLeft = 1;
		static void (*Between)(const char*, const char*) = nullptr;
		Between = Case.Between;
		HostFiles::SetBeforeRename([](const char* Temporary, const char* Target) {
			if (NumLeft-- > 0)
			{
				Between(Temporary, Target);
			}
		});
		const FCheckReport Report = CollisionCheck::Repair(Folder.Get("Project/Test.uproject"), FEditorArguments());
		HostFiles::SetBeforeRename(nullptr);
		EXPECT_EQ(Report.Status, ECheckStatus::Repaired);
		EXPECT_TRUE(Report.Problems.IsEmpty());
		EXPECT_EQ(ReadIni(), Theirs + ProfileLine + ChannelLine);
	}
}

TEST_F(RepairSafety, WhatComesBetweenCheckAndWriteIsTold)
{
	const struct
	{
		const char* Behaviour;
		void (*Between)(const char* Temporary, const char* Target);
		ECheckStatus Status;
		const char* Problem;
	} Cases[] = {
		{"a folder takes its place", [](const char*, const char* Target) { std::filesystem::remove(Target); std::filesystem::create_directory(Target); }, ECheckStatus::Trouble,
			"a folder stands where a file is to be read"},
		{"another program never stops", [](const char*, const char* Target) { std::ofstream(Target, std::ios::app) << "; more\n"; }, ECheckStatus::Trouble,
			"the file was not written: another program keeps changing it"},
		{"others write over it", [](const char* Temporary, const char*) { std::ofstream(Temporary) << "[Other]\n"; }, ECheckStatus::Repaired,
			"the repair changed other lines as well, so that --undo cannot take it back"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(SectionLine + GlassLine);
		HostProblems::Clear();
		HostFiles::SetBeforeRename(Case.Between);
		const FCheckReport Report = CollisionCheck::Repair(Folder.Get("Project/Test.uproject"), FEditorArguments());
		HostFiles::SetBeforeRename(nullptr);
		EXPECT_EQ(Report.Status, Case.Status);
		ASSERT_FALSE(Report.Problems.IsEmpty());
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Report.Problems[0].Message)), Case.Problem);
		std::filesystem::remove_all(Folder.GetNative(IniFile));
	}
}
