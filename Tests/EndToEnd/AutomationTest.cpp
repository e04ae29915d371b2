// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <gmock/gmock.h>
#include <set>

using testing::HasSubstr;
using testing::Not;

/** The command that runs the suite, its reports, and the comparison with those of an engine. */
class AutomationRuns : public FProjectOnDisk
{
protected:
	FProgramResult Run(std::vector<std::string> Arguments) const
	{
		Arguments.insert(Arguments.begin(), "automation");
		return FProgramRun::Run(Arguments, GetEnvironment());
	}

	/** What an engine might have exported: this program's own report of a few tests, with texts replaced. */
	std::string ExportWith(const std::string& From = {}, const std::string& To = {}) const
	{
		MakeProject();
		EXPECT_EQ(Run({GetProject(), Filter, "--report", Folder.GetNative("Report").string()}).ExitStatus, 0);
		std::string Report = Folder.Read("Report/index.json");
		EXPECT_NE(Report.find(From), std::string::npos) << From << " in " << Report;
		return From.empty() ? Report : CollisionIni::Replace(Report, From, To);
	}

	FProgramResult Compare(const std::string& Report) const
	{
		Folder.Write("Engine/index.json", Report);
		return Run({GetProject(), Filter, "--compare", Folder.GetNative("Engine").string()});
	}

	static inline const std::string Filter = "Engine.Delegates+Engine.Ensure";
	static inline const std::string OfOrder = "Belief: order of a native broadcast = 321";
};

TEST_F(AutomationRuns, RunsTheSuiteAndLeavesTheProjectAsItWas)
{
	CopySample();
	const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
	const FProgramResult Result = Run({GetProject(), "--with-repair", "--report", Folder.GetNative("Report").string()});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	EXPECT_THAT(Result.Output, HasSubstr("  Velmorant.Module.Collision.Repair\n"));
	EXPECT_EQ(Result.Errors, "");
	for (const auto& [Path, State] : LookAtFolder(Folder.GetNative("Project")))
	{
		ASSERT_TRUE(Before.contains(Path)) << Path;
		EXPECT_EQ(State.first, Before.at(Path).first) << Path;
	}
}

TEST_F(AutomationRuns, LeavesOutNothingInEveryProject)
{
	const auto FindLeftOut = [this](std::vector<std::string> Arguments) {
		Arguments.insert(Arguments.end(), {"--report", Folder.GetNative("Report").string()});
		EXPECT_EQ(Run(Arguments).ExitStatus, 0);
		std::set<std::string> LeftOut;
		const std::string Report = Folder.Read("Report/index.json");
		for (size_t At = Report.find("Left out: "); At != std::string::npos; At = Report.find("Left out: ", At + 1))
		{
			LeftOut.insert(Report.substr(At, Report.find('"', At) - At));
		}
		return LeftOut;
	};
	MakeProject();
	const std::set<std::string> InAnEmptyLevel = FindLeftOut({GetProject(), "Velmorant.Module"});
	std::filesystem::remove_all(Folder.GetNative("Project"));
	CopySample();
	for (const std::string& Reason : FindLeftOut({GetProject(), "Velmorant.Module", "--with-repair"}))
	{
		EXPECT_FALSE(InAnEmptyLevel.contains(Reason)) << Reason;
	}
}

TEST_F(AutomationRuns, ExportsWhatItRan)
{
	const std::string Report = ExportWith();
	EXPECT_TRUE(Report.starts_with("\xEF\xBB\xBF{")) << Report.substr(0, 20);
	for (const char* const Part : {"\"fullTestPath\": \"Velmorant.Engine.Delegates.Broadcast\"", "\"state\": \"Success\"", "\"failed\": 0", "\"notRun\": 0", "Belief: order of a native broadcast = "})
	{
		EXPECT_THAT(Report, HasSubstr(Part));
	}
	EXPECT_THAT(Report, Not(HasSubstr("Velmorant.Module"))) << "the filter leaves them out";
	const FProgramResult List = Run({"--list"});
	EXPECT_EQ(List.ExitStatus, 0);
	EXPECT_THAT(List.Output, HasSubstr("Velmorant.Engine.Delegates.Broadcast\n"));
}

TEST_F(AutomationRuns, ComparesAnEnginesRunWithItsOwn)
{
	struct FCase
	{
		const char* What;
		std::string From, To;
		int ExitStatus;
		std::vector<std::string> Said;
	};
	const std::string TestWithState = "\"fullTestPath\": \"Velmorant.Engine.Delegates.AddUnique\",\n   \"state\": \"";
	const std::string OfEnsures = "reports of an ensure that fails three times = ";
	const FCase Cases[] = {
		{"the same", "", "", 0, {"Engine and host agree."}},
		{"another value", OfOrder, "Belief: order of a native broadcast = 123", 1, {"order of a native broadcast\n    engine: 123\n    host:   321", "differ."}},
		{"a value that is not recorded", OfOrder, "nothing", 1, {"engine: not recorded"}},
		{"a value that is meant to differ", OfEnsures + "1", OfEnsures + "2", 0, {"engine: 2\n    host:   1\n    intended: ", "agree."}},
		{"a test that fails there", TestWithState + "Success", TestWithState + "Fail", 1, {"Fail in the engine only:\n  Velmorant.Engine.Delegates.AddUnique (Fail)"}},
		{"a test that is not there", "Velmorant.Engine.Delegates.AddUnique", "Velmorant.Engine.Delegates.Older", 1, {"Not in the engine's report:\n  Velmorant.Engine.Delegates.AddUnique", "Not known to the host:\n  Velmorant.Engine.Delegates.Older"}},
		{"a test that did not end", TestWithState + "Success", TestWithState + "InProcess", 3, {"Not finished in the engine:\n  Velmorant.Engine.Delegates.AddUnique"}},
	};
	for (const FCase& Case : Cases)
	{
		const FProgramResult Result = Compare(ExportWith(Case.From, Case.To));
		EXPECT_EQ(Result.ExitStatus, Case.ExitStatus) << Case.What << Result.Output << Result.Errors;
		for (const std::string& Said : Case.Said)
		{
			EXPECT_THAT(Result.Output, HasSubstr(Said)) << Case.What;
		}
	}
}

TEST_F(AutomationRuns, RefusesReportsThatAreNone)
{
	const std::string Whole = ExportWith();
	struct FCase
	{
		std::string Report;
		const char* Said;
	};
	const FCase Cases[] = {
		{Whole.substr(0, Whole.size() / 2), "The report is cut off or damaged"},
		{"", "The report is cut off or damaged"},
		{"{\"tests\": {}}", "This is not a report of automation tests"},
		{"[1, 2]", "This is not a report of automation tests"},
		{"{\"tests\": [{\"fullTestPath\": 7, \"state\": \"Success\"}]}", "This is not a report of automation tests"},
		{"{\"tests\": [{\"fullTestPath\": \"Velmorant.A\", \"state\": \"Success\", \"entries\": [7]}]}", "This is not a report of automation tests"},
		{"{\"tests\": [{\"fullTestPath\": \"Project.Other\", \"state\": \"Success\"}]}", "The report holds no test of the toolkit"},
	};
	for (const FCase& Case : Cases)
	{
		const FProgramResult Result = Compare(Case.Report);
		EXPECT_EQ(Result.ExitStatus, 3) << Case.Report;
		EXPECT_THAT(Result.Errors, HasSubstr(Case.Said)) << Case.Report;
		ExpectOwnWords(Result);
	}
	const FProgramResult Missing = Run({"--compare", Folder.GetNative("Nowhere.json").string()});
	EXPECT_EQ(Missing.ExitStatus, 3);
	EXPECT_THAT(Missing.Errors, HasSubstr("There is no such report"));
}

TEST_F(AutomationRuns, RefusesWhatItCannotRun)
{
	MakeProject();
	EXPECT_EQ(Run({}).ExitStatus, 2);
	EXPECT_EQ(Run({Folder.GetNative("Nowhere").string()}).ExitStatus, 2);
	EXPECT_EQ(Run({GetProject(), "--list", "--report", "x"}).ExitStatus, 2);
	const FProgramResult NoMatch = Run({GetProject(), "Velmorant.Nowhere"});
	EXPECT_EQ(NoMatch.ExitStatus, 2);
	EXPECT_THAT(NoMatch.Errors, HasSubstr("No automation tests matched 'Velmorant.Nowhere'."));
	Folder.Write("Taken", "a file");
	EXPECT_EQ(Run({GetProject(), Filter, "--report", Folder.GetNative("Taken").string()}).ExitStatus, 3);
}
