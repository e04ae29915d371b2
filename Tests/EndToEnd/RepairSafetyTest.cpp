// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "EditorHost.h"
#include "HostFiles.h"
#include "HostNotifications.h"
#include "ProjectOnDisk.h"

#include <sys/wait.h>
#include <unistd.h>

using namespace CollisionIni;

class FRepairSafety : public FProjectOnDisk
{
protected:
	FRepairSafety() { MakeProject(); }
};

TEST_F(FRepairSafety, RepairsAtOnceAddTheLinesOnce)
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

TEST_F(FRepairSafety, ACrashBeforeTheRenameLeavesTheOldFile)
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
	EXPECT_EQ(Folder.Count("Project/Config"), 1u) << "what the crash left is cleared away";
}
