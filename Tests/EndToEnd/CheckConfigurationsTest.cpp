// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

using namespace CollisionIni;

class FCheckConfigurations : public FProjectOnDisk
{
protected:
	FCheckConfigurations() { MakeProject(); }

	/** Runs the program and expects that everything is as it was. */
	void ExpectRefused(const std::vector<std::string>& Options, const std::string& Reason) const
	{
		const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
		const FProgramResult Result = Check(Options);
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
		EXPECT_NE(Result.Errors.find("DefaultEngine.ini"), std::string::npos) << Result.Errors;
		EXPECT_NE(Result.Errors.find(Reason), std::string::npos) << Result.Errors;
		EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);
	}
};

TEST_F(FCheckConfigurations, RepairWorksOnFilesOfEveryShape)
{
	const std::string Two = ProfileLine + ChannelLine;
	std::string Unended = Section + OtherProfile;
	Unended.pop_back();
	const struct
	{
		const char* Behaviour;
		std::string Before;
		std::string After;
	} Cases[] = {
		{"behind the last profile, other lines stay", "; note\n" + Section + OtherProfile + "Key=1\n[Other]\nA=\n", "; note\n" + Section + OtherProfile + Two + "Key=1\n[Other]\nA=\n"},
		{"carriage returns stay and new lines get them", WithCarriageReturns(Section + OtherProfile + "Key=1\n"), WithCarriageReturns(Section + OtherProfile + Two + "Key=1\n")},
		{"UTF-16 stays UTF-16", AsUtf16(Section + OtherProfile), AsUtf16(Section + OtherProfile + Two)},
		{"a byte-order mark stays", "\xEF\xBB\xBF" + Section + OtherProfile, "\xEF\xBB\xBF" + Section + OtherProfile + Two},
		{"letters beyond ASCII stay", "; Ático Ñandú\n" + Section + OtherProfile, "; Ático Ñandú\n" + Section + OtherProfile + Two},
		{"a profile line in lower case counts", Section + "+profiles=(Name=\"Glass\")\n", Section + "+profiles=(Name=\"Glass\")\n" + Two},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Before);
		EXPECT_EQ(Check().ExitStatus, 1);
		EXPECT_EQ(ReadIni(), Case.Before);
		const FProgramResult Result = Check({"--repair"});
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		EXPECT_EQ(ReadIni(), Case.After);
		EXPECT_EQ(Check().ExitStatus, 0);
	}

	SCOPED_TRACE("a last line without line end");
	WriteIni(Unended);
	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
	EXPECT_EQ(ReadIni().rfind(Unended + "\n" + ProfileLine, 0), 0u) << ReadIni();
	EXPECT_EQ(Check().ExitStatus, 0);
}

TEST_F(FCheckConfigurations, TheVerdictIsTheToolkits)
{
	std::string OtherSpacing = ChannelLine;
	OtherSpacing.erase(OtherSpacing.find(", Name") + 1, 1);
	std::string OtherCase = ChannelLine;
	OtherCase.replace(OtherCase.find("UnitVolume"), 10, "UNITVOLUME");
	const struct
	{
		const char* Behaviour;
		std::string Ini;
		int ExitStatus;
	} Cases[] = {
		{"both lines", Section + ProfileLine + ChannelLine, 0},
		{"the channel in another letter case", Section + ProfileLine + OtherCase, 0},
		{"the channel without a blank is another line", Section + ProfileLine + OtherSpacing, 1},
		{"the channel alone", Section + OtherProfile + ChannelLine, 1},
		{"the profile alone", Section + ProfileLine, 1},
		{"both in another section", "[/Script/Engine.Other]\n" + ProfileLine + ChannelLine + Section + OtherProfile, 1},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Ini);
		EXPECT_EQ(Check().ExitStatus, Case.ExitStatus);
	}
}

TEST_F(FCheckConfigurations, AProjectWithoutTheSectionGetsItFirst)
{
	for (const bool bFile : {true, false})
	{
		SCOPED_TRACE(bFile ? "a file without the section" : "no file");
		std::filesystem::remove(Folder.GetNative(IniFile));
		if (bFile)
		{
			WriteIni("[Other]\nKey=1\n");
		}
		const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
		const FProgramResult Looked = Check();
		EXPECT_EQ(Looked.ExitStatus, 1) << Looked.Errors;
		EXPECT_NE(Looked.Output.find("Would have written " + Folder.GetNative(IniFile).string()), std::string::npos) << Looked.Output;
		EXPECT_EQ(CountOf(Looked.Output, "  [/Script/Engine.CollisionProfile]"), 1u) << Looked.Output;
		EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);

		const FProgramResult Repaired = Check({"--repair"});
		EXPECT_EQ(Repaired.ExitStatus, 0) << Repaired.Output << Repaired.Errors;
		EXPECT_EQ(CountOf(ReadIni(), ProfileLine + ChannelLine), 1u) << ReadIni();
		EXPECT_EQ(ReadIni().rfind(bFile ? "[Other]\nKey=1\n" : "", 0), 0u);
		EXPECT_EQ(Check().ExitStatus, 0);
	}
}

TEST_F(FCheckConfigurations, AReadOnlyFileIsRefused)
{
	WriteIni(Section + OtherProfile);
	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0444));
	ExpectRefused({"--repair"}, "read-only");
	EXPECT_EQ(Check().ExitStatus, 1) << "looking at it is no matter";
}

TEST_F(FCheckConfigurations, AFolderInItsPlaceIsRefused)
{
	std::filesystem::create_directories(Folder.GetNative(IniFile));
	ExpectRefused({"--repair"}, "folder");
	ExpectRefused({}, "folder");
}

TEST_F(FCheckConfigurations, BytesThatNoEncodingExplainsAreRefused)
{
	WriteIni(Section + OtherProfile + "; \xC3\x28 \xFF\n");
	ExpectRefused({"--repair"}, "");
	ExpectRefused({}, "");
}
