// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>

using namespace CollisionIni;

class CheckConfigurations : public FProjectOnDisk
{
protected:
	CheckConfigurations() { MakeProject(); }

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

TEST_F(CheckConfigurations, RepairWorksOnFilesOfEveryShape)
{
	const std::string Two = ProfileLine + ChannelLine;
	std::string Unended = SectionLine + GlassLine;
	Unended.pop_back();
	const struct
	{
		const char* Behaviour;
		std::string Before;
		std::string After;
	} Cases[] = {
		{"behind the last profile, other lines stay", "; note\n" + SectionLine + GlassLine + "Key=1\n[Other]\nA=\n", "; note\n" + SectionLine + GlassLine + Two + "Key=1\n[Other]\nA=\n"},
		{"carriage returns stay and new lines get them", WithCarriageReturns(SectionLine + GlassLine + "Key=1\n"), WithCarriageReturns(SectionLine + GlassLine + Two + "Key=1\n")},
		{"UTF-16 stays UTF-16", ToUtf16(SectionLine + GlassLine), ToUtf16(SectionLine + GlassLine + Two)},
		{"a byte-order mark stays", "\xEF\xBB\xBF" + SectionLine + GlassLine, "\xEF\xBB\xBF" + SectionLine + GlassLine + Two},
		{"letters beyond ASCII stay", "; Ático Ñandú\n" + SectionLine + GlassLine, "; Ático Ñandú\n" + SectionLine + GlassLine + Two},
		{"a profile line in lower case counts", SectionLine + "+profiles=(Name=\"Glass\")\n", SectionLine + "+profiles=(Name=\"Glass\")\n" + Two},
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

TEST_F(CheckConfigurations, TheVerdictIsTheToolkits)
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
		{"both lines", SectionLine + ProfileLine + ChannelLine, 0},
		{"the channel in another letter case", SectionLine + ProfileLine + OtherCase, 0},
		{"the channel without a blank is another line", SectionLine + ProfileLine + OtherSpacing, 1},
		{"the channel alone", SectionLine + GlassLine + ChannelLine, 1},
		{"the profile alone", SectionLine + ProfileLine, 1},
		{"both in another section", "[/Script/Engine.Other]\n" + ProfileLine + ChannelLine + SectionLine + GlassLine, 1},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Ini);
		EXPECT_EQ(Check().ExitStatus, Case.ExitStatus);
	}
}

TEST_F(CheckConfigurations, AProjectWithoutTheSectionGetsTheEnginesProfilesFirst)
{
	const std::string Told = " With them come the engine's current profiles (19 lines), which a project without a collision section gets first.\n";
	const std::string Engine = "  the engine's current profiles:\n    [/Script/Engine.CollisionProfile]\n    +Profiles=(Name=\"NoCollision\",";
	for (const bool bFile : {true, false})
	{
		SCOPED_TRACE(bFile ? "a file without the section" : "no file");
		const std::string Own = bFile ? "[Other]\nKey=1\n" : "";
		const auto Restore = [&] {
			std::filesystem::remove(Folder.GetNative(IniFile));
			if (bFile)
			{
				WriteIni(Own);
			}
		};
		Restore();
		const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
		const FProgramResult Looked = Check();
		EXPECT_EQ(Looked.ExitStatus, 1) << Looked.Errors;
		EXPECT_NE(Looked.Output.find("Would have written " + Folder.GetNative(IniFile).string() + "\n" + (bFile ? "" : Engine)), std::string::npos) << Looked.Output;
		EXPECT_TRUE(Looked.Output.ends_with(" --repair adds them." + Told)) << Looked.Output;
		const nlohmann::json Foretold = nlohmann::json::parse(Check({"--json"}).Output, nullptr, false);
		EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);

		const FProgramResult Repaired = Check({"--repair"});
		EXPECT_EQ(Repaired.ExitStatus, 0) << Repaired.Output << Repaired.Errors;
		EXPECT_NE(Repaired.Output.find("\n  the toolkit's lines:\n    " + ProfileLine + "    " + ChannelLine), std::string::npos) << Repaired.Output;
		EXPECT_TRUE(Repaired.Output.ends_with(" have been added." + Told)) << Repaired.Output;
		const std::string Ini = ReadIni();
		EXPECT_EQ(CountOf(Ini, ProfileLine + ChannelLine), 1u) << Ini;
		EXPECT_EQ(CountOf(Ini, ",HelpMessage=\"\")\n"), 18u) << "no words of the host's own come into the project";
		EXPECT_EQ(Ini.rfind(Own, 0), 0u);
		EXPECT_EQ(Check().ExitStatus, 0);

		Restore();
		const nlohmann::json Report = nlohmann::json::parse(Check({"--repair", "--json"}).Output, nullptr, false);
		ASSERT_TRUE(Foretold.is_object());
		ASSERT_TRUE(Report.is_object());
		ASSERT_EQ(Report["writtenFiles"].size(), 1u);
		const nlohmann::json& Written = Report["writtenFiles"][0];
		EXPECT_EQ(Foretold["repairWrites"], Report["writtenFiles"]) << "what was foretold is done";
		EXPECT_EQ(Foretold["pendingWrites"][0]["engineLines"], Written["engineLines"]);
		EXPECT_TRUE(Foretold["pendingWrites"][0]["toolkitLines"].empty());
		EXPECT_EQ(Written["toolkitLines"].size(), 2u);
		EXPECT_EQ(Written["addedLines"].size(), Written["engineLines"].size() + 2);
	}
}

TEST_F(CheckConfigurations, ARepairThatDoesNotHelpIsForetoldAndWritesNothing)
{
	const std::string Ini = Folder.GetNative(IniFile).string();
	const std::string Rule = "the toolkit adds its lines behind the last line that begins with +Profiles=";
	const std::string None = Rule + ", and Config/DefaultEngine.ini has none";
	const std::string Layer = Folder.GetNative("Project/Config/Linux/LinuxEngine.ini").string();
	const struct
	{
		const char* Behaviour;
		std::string Ini;
		std::string Layer; // this machine's platform
		std::string Reason;
		std::string ByHand;
		std::string Spoiler; // "path(line)"
	} Cases[] = {
		{"no profile line", SectionLine + "Key=1\n", "", None, ProfileLine + ChannelLine, ""},
		{"no profile line, but the channel", SectionLine + "Key=1\n" + ChannelLine, "", None, ProfileLine, ""},
		{"the profile in another form", SectionLine + "Profiles=(Name=\"UnitVolume\")\n", "", None, ChannelLine, ""},
		{"profiles in another section", SectionLine + "Key=1\n[/Script/Other]\nA=1\n" + GlassLine, "", Rule + ", which is " + Ini + "(5), in another section, [/Script/Other]", ProfileLine + ChannelLine, ""},
		{"both lines in another section", SectionLine + "Key=1\n[/Script/Other]\n" + ProfileLine + ChannelLine, "", Rule + ", which is " + Ini + "(4), in another section, [/Script/Other]", ProfileLine + ChannelLine, ""},
		{"a profile before the first section", GlassLine + SectionLine + "Key=1\n", "", Rule + ", which is " + Ini + "(1), in no section", ProfileLine + ChannelLine, ""},
		{"a profile that goes on in the next line", SectionLine + "+Profiles=(Name=\"Any\")\\\n", "", "the lines that the toolkit adds have no effect where it adds them", ProfileLine + ChannelLine, ""},
		{"profiles that are cleared below", SectionLine + GlassLine + "; note\n!Profiles=ClearArray\n", "", "line 4 of " + Ini + " has to go first", "", Ini + "(4)"},
		{"profiles that are cleared above those of another section", SectionLine + ProfileLine + ChannelLine + "!Profiles=ClearArray\n[/Script/Other]\n" + GlassLine, "", "line 4 of " + Ini + " has to go first", "", Ini + "(4)"},
		{"profiles that a layer clears", SectionLine + GlassLine, SectionLine + "!Profiles=ClearArray\n", "line 2 of " + Layer + " has to go first", "", Layer + "(2)"},
		{"both lines, but a layer clears them", SectionLine + ProfileLine + ChannelLine, SectionLine + "!Profiles=ClearArray\n", "line 2 of " + Layer + " has to go first", "", Layer + "(2)"},
	};
	const std::filesystem::path Here = std::filesystem::current_path();
	Folder.Write("Config/DefaultEngine.ini", "");
	std::filesystem::permissions(Folder.GetNative("Config/DefaultEngine.ini"), std::filesystem::perms(0444));
	std::filesystem::current_path(Folder.GetNative()); // a project in the working directory is none of check's business
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Ini);
		Folder.Write("Project/Config/Linux/LinuxEngine.ini", Case.Layer);
		const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
		const std::string Tail = Case.Reason + ".\n" + (Case.ByHand.empty() ? "" : "Add to the section [/Script/Engine.CollisionProfile] of Config/DefaultEngine.ini by hand:\n" + Case.ByHand);
		const FProgramResult Looked = Check({"--diff"});
		EXPECT_EQ(Looked.ExitStatus, 1) << Looked.Errors;
		EXPECT_TRUE(Looked.Output.ends_with(" is not there. --repair cannot help: " + Tail)) << Looked.Output;
		EXPECT_EQ(Looked.Output.find("@@"), std::string::npos) << Looked.Output;
		EXPECT_EQ(CountOf(Looked.Output, Case.Spoiler + ": takes the UnitVolume profile away: !Profiles=ClearArray\n"), Case.Spoiler.empty() ? 0u : 1u) << Looked.Output;

		for (const int Round : {1, 2})
		{
			SCOPED_TRACE(Round);
			const FProgramResult Repaired = Check({"--repair"});
			EXPECT_EQ(Repaired.ExitStatus, 1) << Repaired.Errors;
			EXPECT_TRUE(Repaired.Output.ends_with("Still missing, nothing was written. The repair would not help: " + Tail)) << Repaired.Output;
			EXPECT_EQ(Repaired.Output.find("Profiles Added"), std::string::npos) << Repaired.Output;
		}
		const nlohmann::json Report = nlohmann::json::parse(Check({"--repair", "--json"}).Output, nullptr, false);
		ASSERT_TRUE(Report.is_object());
		EXPECT_EQ(Report["reason"], Case.Reason);
		EXPECT_EQ(Report["linesToAdd"].size(), CountOf(Case.ByHand, "\n"));
		EXPECT_TRUE(Report["writtenFiles"].empty() && Report["diff"] == "") << Report;
		EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);
		EXPECT_EQ(Check({"--undo"}).ExitStatus, 2) << "there is nothing to take back";

		// What is advised helps.
		std::filesystem::remove(Layer);
		WriteIni(CollisionIni::Replace(CollisionIni::Replace(Case.Ini, "!Profiles=ClearArray\n", ""), SectionLine, SectionLine + Case.ByHand));
		EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
		EXPECT_EQ(Check({"--undo"}).ExitStatus, Case.ByHand.empty() && Case.Ini.find(ProfileLine) == std::string::npos ? 0 : 2) << "lines that were added by hand need no repair";
	}
	std::filesystem::current_path(Here);
}

TEST_F(CheckConfigurations, AReadOnlyFileIsRefused)
{
	WriteIni(SectionLine + GlassLine);
	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0444));
	ExpectRefused({"--repair"}, "read-only");
	const FProgramResult Looked = Check({"--diff"});
	EXPECT_EQ(Looked.ExitStatus, 1) << "looking at it is no matter";
	EXPECT_EQ(Looked.Output.find("@@"), std::string::npos);
	EXPECT_NE(Looked.Errors.find("read-only"), std::string::npos) << Looked.Errors;
}

TEST_F(CheckConfigurations, AFolderInItsPlaceIsRefused)
{
	std::filesystem::create_directories(Folder.GetNative(IniFile));
	ExpectRefused({"--repair"}, "folder");
	ExpectRefused({}, "folder");
	std::filesystem::remove_all(Folder.GetNative("Project/Config"));
	Folder.Write("Project/Config", "a file in place of its folder");
	ExpectRefused({"--repair"}, "the file cannot be written, its folder does not permit it. Check the permissions of the folder.");
}

TEST_F(CheckConfigurations, BytesThatNoEncodingExplainsAreRefused)
{
	WriteIni(SectionLine + GlassLine + "; \xC3\x28 \xFF\n");
	ExpectRefused({"--repair"}, "");
	ExpectRefused({}, "");
	WriteIni(SectionLine + GlassLine);
	Folder.Write("Project/Config/Linux/LinuxEngine.ini", "[A]\nB=\xFF\n");
	const FProgramResult Result = Check({"--repair"});
	EXPECT_EQ(Result.ExitStatus, 3);
	EXPECT_NE(Result.Errors.find("LinuxEngine.ini(2): the file is neither UTF-8"), std::string::npos) << Result.Errors;
}
