// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>

using namespace CollisionIni;

/** Taking a repair back. */
class CheckUndo : public FProjectOnDisk
{
protected:
	CheckUndo() { MakeProject(); }

	void RepairFrom(const std::string& Before) const
	{
		WriteIni(Before);
		const FProgramResult Result = Check({"--repair"});
		ASSERT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	}

	/** The record of the only repair. */
	std::filesystem::path FindRecord() const
	{
		std::filesystem::path Found;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative("UserState")))
		{
			Found = Entry.is_regular_file() && Entry.path().extension() == ".json" ? Entry.path() : Found;
		}
		return Found;
	}

	static inline const std::string Usual = SectionLine + GlassLine + "Key=1\n";
};

TEST_F(CheckUndo, GivesTheFileBackAsItWas)
{
	std::string Unended = Usual;
	Unended.pop_back();
	const struct
	{
		const char* Behaviour;
		std::string Before;
	} Cases[] = {
		{"a section with profiles", "; note\n" + Usual + "[Other]\nA=\n"},
		{"carriage returns", WithCarriageReturns(Usual)},
		{"lone carriage returns", CollisionIni::Replace(Usual, "\n", "\r")},
		{"UTF-16", ToUtf16(Usual)},
		{"a byte-order mark and letters beyond ASCII", "\xEF\xBB\xBF; Ático Ñandú\n" + Usual},
		{"a last line without end", Unended},
		{"a last profile without end", SectionLine + "+Profiles=(Name=\"Any\")"},
		{"no section", "[Other]\nKey=1\n"},
		{"no section and no last line end", "[Other]\nKey=1"},
		{"an empty file", ""},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		RepairFrom(Case.Before);
		EXPECT_NE(ReadIni(), Case.Before);
		const FProgramResult Result = Check({"--undo"});
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		EXPECT_EQ(ReadIni(), Case.Before);
		EXPECT_TRUE(Folder.Exists(IniFile)) << "it was there, be it empty";
		EXPECT_EQ(Check().ExitStatus, 1);
		EXPECT_EQ(Check({"--undo"}).ExitStatus, 2) << "there is nothing left to take back";
		EXPECT_EQ(ReadIni(), Case.Before);
	}

	SCOPED_TRACE("no file");
	std::filesystem::remove(Folder.GetNative(IniFile));
	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
	EXPECT_EQ(Check({"--undo"}).ExitStatus, 0);
	EXPECT_FALSE(Folder.Exists(IniFile));

	SCOPED_TRACE("no file, and somebody put something into the new one");
	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
	WriteIni("; mine\n" + ReadIni());
	EXPECT_EQ(Check({"--undo"}).ExitStatus, 0);
	EXPECT_EQ(ReadIni(), "; mine\n");
}

TEST_F(CheckUndo, FindsTheLinesWhereTheyStandNow)
{
	RepairFrom(Usual);
	const std::string Repaired = ReadIni();
	WriteIni("[New]\nA=1\n" + Repaired.substr(0, Repaired.find(ProfileLine)) + "+Profiles=(Name=\"Mine\")\n" + ProfileLine + "; between\n" + ChannelLine + "B=2\n");
	const FProgramResult Result = Check({"--undo", "--diff"});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	EXPECT_EQ(ReadIni(), "[New]\nA=1\n" + SectionLine + GlassLine + "+Profiles=(Name=\"Mine\")\n; between\nB=2\n");
	EXPECT_NE(Result.Output.find("\n-" + ProfileLine + " ; between\n-" + ChannelLine), std::string::npos) << Result.Output;
}

TEST_F(CheckUndo, ChangesNothingWhenTheLinesAreNotAsTheyWere)
{
	RepairFrom("[Other]\nKey=1\n");
	const std::string Repaired = ReadIni();
	const struct
	{
		const char* Behaviour;
		std::string Text;
		const char* Reason;
	} Cases[] = {
		{"a line was edited", CollisionIni::Replace(Repaired, "bStaticObject=True)\n", "bStaticObject=False)\n"), "is not there any more"},
		{"a line was added to the section that the repair made", Repaired + "+Profiles=(Name=\"Mine\")\n", "\"+Profiles=(Name=\"Mine\")\", was added to the section that would go"},
		{"all is gone", "[Other]\nKey=1\n", "is not there any more"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Text);
		const FProgramResult Result = Check({"--undo"});
		EXPECT_EQ(Result.ExitStatus, 1) << Result.Errors;
		EXPECT_NE(Result.Output.find("Not undone, nothing was changed: "), std::string::npos) << Result.Output;
		EXPECT_NE(Result.Output.find(Case.Reason), std::string::npos) << Result.Output;
		EXPECT_EQ(ReadIni(), Case.Text);
	}
	WriteIni(Repaired);
	EXPECT_EQ(Check({"--undo"}).ExitStatus, 0) << "a person can put the lines right and try again";
	EXPECT_EQ(ReadIni(), "[Other]\nKey=1\n");
}

TEST_F(CheckUndo, IsAboutTheLastRepairOfThisProject)
{
	Folder.Write("Second/Test.uproject", "{ \"FileVersion\": 3 }\n");
	Folder.Write("Second/Config/DefaultEngine.ini", "; second\n" + Usual);
	const std::string Second = Folder.GetNative("Second").string();
	RepairFrom(Usual);
	ASSERT_EQ(FProgramRun::Run({"check", Second, "--repair"}, GetEnvironment()).ExitStatus, 0);
	ASSERT_EQ(Check({"--repair"}).ExitStatus, 0) << "a repair without anything to do is none";

	std::filesystem::create_directory_symlink(Folder.GetNative("Project"), Folder.GetNative("Link"));
	EXPECT_EQ(FProgramRun::Run({"check", Folder.GetNative("Link").string(), "--undo"}, GetEnvironment()).ExitStatus, 0) << "it is the same project";
	EXPECT_EQ(ReadIni(), Usual);
	EXPECT_NE(Folder.Read("Second/Config/DefaultEngine.ini"), "; second\n" + Usual);
	EXPECT_EQ(FProgramRun::Run({"check", Second, "--undo"}, GetEnvironment()).ExitStatus, 0);
	EXPECT_EQ(Folder.Read("Second/Config/DefaultEngine.ini"), "; second\n" + Usual);
}

TEST_F(CheckUndo, NeedsARecord)
{
	WriteIni(SectionLine + GlassLine + ProfileLine + ChannelLine);
	const std::string Before = ReadIni();
	const FProgramResult Result = Check({"--undo"});
	EXPECT_EQ(Result.ExitStatus, 2);
	EXPECT_EQ(Result.Errors, "No repair of this project is recorded: there is nothing to take back.\n");
	EXPECT_EQ(nlohmann::json::parse(Check({"--undo", "--json"}).Output, nullptr, false).value("status", -1), 2);
	EXPECT_EQ(ReadIni(), Before);
}

TEST_F(CheckUndo, TheRecordIsTheUsersOwnAndNotInTheProject)
{
	RepairFrom(Usual);
	EXPECT_EQ(Folder.Count("Project"), 2u) << "descriptor and configuration";
	EXPECT_EQ(Folder.Count("Project/Config"), 2u);
	const std::filesystem::path Record = FindRecord();
	ASSERT_EQ(Record.parent_path(), Folder.GetNative("UserState/velmorant"));
	EXPECT_EQ(std::filesystem::status(Record).permissions(), std::filesystem::perms(0600));
	EXPECT_EQ(std::filesystem::status(Record.parent_path()).permissions(), std::filesystem::perms(0700));

	std::ofstream(Record) << "{\"project\": 1}";
	const std::string Repaired = ReadIni();
	const FProgramResult Result = Check({"--undo"});
	EXPECT_EQ(Result.ExitStatus, 3);
	EXPECT_NE(Result.Errors.find(Record.string() + ": the file is no record of a repair"), std::string::npos) << Result.Errors;
	EXPECT_EQ(ReadIni(), Repaired);
}

TEST_F(CheckUndo, ARepairThatCannotBeRecordedIsARepairAllTheSame)
{
	Folder.Write("UserState", "a file in its place");
	WriteIni(Usual);
	const FProgramResult Result = Check({"--repair"});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output;
	EXPECT_NE(Result.Errors.find(Folder.GetNative("UserState").string()), std::string::npos) << Result.Errors;
	EXPECT_EQ(Check().ExitStatus, 0);
}

TEST_F(CheckUndo, AFileThatCannotBeWrittenIsRefused)
{
	RepairFrom(Usual);
	const std::string Repaired = ReadIni();
	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0444));
	const FProgramResult Result = Check({"--undo"});
	EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
	EXPECT_NE(Result.Errors.find("read-only"), std::string::npos) << Result.Errors;
	EXPECT_EQ(ReadIni(), Repaired);
	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0644));
	EXPECT_EQ(Check({"--undo"}).ExitStatus, 0) << "the record is still there";
}

TEST_F(CheckUndo, JsonTellsWhatWasTakenOut)
{
	RepairFrom(Usual);
	const nlohmann::json Report = nlohmann::json::parse(Check({"--undo", "--json"}).Output, nullptr, false);
	ASSERT_TRUE(Report.is_object());
	EXPECT_EQ(Report.value("verdict", ""), "undone");
	EXPECT_EQ(Report.value("project", ""), GetProject() + "/Test.uproject");
	ASSERT_EQ(Report["writtenFiles"].size(), 1u);
	ASSERT_EQ(Report["writtenFiles"][0]["removedLines"].size(), 2u);
	EXPECT_EQ(Report["writtenFiles"][0]["removedLines"][1].get<std::string>() + "\n", ChannelLine);
	EXPECT_EQ(Report.value("diff", ""), "--- Config/DefaultEngine.ini\n+++ Config/DefaultEngine.ini\n@@ -1,5 +1,3 @@\n " + SectionLine + " " + GlassLine + "-" + ProfileLine + "-" + ChannelLine + " Key=1\n");
}
