// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>

using namespace CollisionIni;

/** The repair as a unified difference, before and after it is made. */
class CheckDifference : public FProjectOnDisk
{
protected:
	CheckDifference() { MakeProject(); }

	static std::string GetDifference(const FProgramResult& Result) { return nlohmann::json::parse(Result.Output, nullptr, false).value("diff", "none"); }

	static inline const std::string Headers = "--- Config/DefaultEngine.ini\n+++ Config/DefaultEngine.ini\n";
};

TEST_F(CheckDifference, ShowsWhatTheRepairAddsWithThreeLinesAroundIt)
{
	const std::string Added = "+" + ProfileLine + "+" + ChannelLine;
	const struct
	{
		const char* Behaviour;
		std::string Before;
		std::string Difference;
	} Cases[] = {
		{"lines before and behind", "; 1\n; 2\n" + SectionLine + GlassLine + "A=1\nB=2\nC=3\nD=4\n", Headers + "@@ -2,6 +2,8 @@\n ; 2\n " + SectionLine + " " + GlassLine + Added + " A=1\n B=2\n C=3\n"},
		{"at the end", SectionLine + GlassLine, Headers + "@@ -1,2 +1,4 @@\n " + SectionLine + " " + GlassLine + Added},
		{"carriage returns are part of the lines", WithCarriageReturns(SectionLine + GlassLine), Headers + "@@ -1,2 +1,4 @@\n" + WithCarriageReturns(" " + SectionLine + " " + GlassLine + Added)},
		{"a last line without end", SectionLine + GlassLine + "A=1", Headers + "@@ -1,3 +1,5 @@\n " + SectionLine + " " + GlassLine + Added + " A=1\n\\ No newline at end of file\n"},
		{"a last profile without end gets one", SectionLine + "+Profiles=(Name=\"Any\")", Headers + "@@ -1,2 +1,4 @@\n " + SectionLine + "-+Profiles=(Name=\"Any\")\n\\ No newline at end of file\n++Profiles=(Name=\"Any\")\n+" + ProfileLine + "+" + ChannelLine.substr(0, ChannelLine.size() - 1) + "\n\\ No newline at end of file\n"},
		{"UTF-16 is shown as UTF-8", ToUtf16(SectionLine + GlassLine), Headers + "@@ -1,2 +1,4 @@\n " + SectionLine + " " + GlassLine + Added},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Before);
		const FProgramResult Looked = Check({"--diff"});
		EXPECT_EQ(Looked.ExitStatus, 1) << Looked.Errors;
		EXPECT_NE(Looked.Output.find("\n" + Case.Difference + "Missing: "), std::string::npos) << Looked.Output;
		EXPECT_EQ(GetDifference(Check({"--json"})), Case.Difference);
		EXPECT_EQ(ReadIni(), Case.Before) << "looking changes nothing";

		EXPECT_EQ(GetDifference(Check({"--repair", "--json"})), Case.Difference) << "what was foretold is done";
		EXPECT_EQ(GetDifference(Check({"--json"})), "") << "a sound project needs nothing";
	}
}

TEST_F(CheckDifference, ShowsTheSectionThatIsMadeAndAFileThatIsNew)
{
	for (const bool bFile : {true, false})
	{
		SCOPED_TRACE(bFile ? "a file without the section" : "no file");
		std::filesystem::remove(Folder.GetNative(IniFile));
		if (bFile)
		{
			WriteIni("[Other]\nKey=1\n");
		}
		const std::string Difference = GetDifference(Check({"--json"}));
		EXPECT_EQ(Difference.rfind(bFile ? Headers + "@@ -1,2 +1," : "--- /dev/null\n+++ Config/DefaultEngine.ini\n@@ -0,0 +1,", 0), 0u) << Difference;
		EXPECT_NE(Difference.find("\n+" + ProfileLine + "+" + ChannelLine), std::string::npos) << Difference;
		EXPECT_EQ(Folder.Exists(IniFile), bFile);

		EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
		std::string Added;
		std::string Shown = Difference.substr(Difference.find("\n@@") + 1);
		for (size_t At = Shown.find('\n') + 1; At < Shown.size(); At = Shown.find('\n', At) + 1)
		{
			EXPECT_NE(Shown[At], '-');
			Added += Shown.substr(At + 1, Shown.find('\n', At) - At);
		}
		EXPECT_EQ(ReadIni(), Added);
	}
}

TEST_F(CheckDifference, StandsInTheReportOnlyWhenAskedFor)
{
	WriteIni(SectionLine + GlassLine);
	EXPECT_EQ(Check().Output.find("@@"), std::string::npos);
	const FProgramResult Repaired = Check({"--repair", "--diff"});
	EXPECT_EQ(Repaired.ExitStatus, 0) << Repaired.Errors;
	EXPECT_EQ(CountOf(Repaired.Output, ChannelLine), 1u) << Repaired.Output;
	EXPECT_NE(Repaired.Output.find("\n" + Headers + "@@ -1,2 +1,4 @@\n"), std::string::npos) << Repaired.Output;
}
