// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationCommand.h"

#include "Automation/AutomationComparison.h"
#include "Automation/AutomationReport.h"
#include "Automation/AutomationText.h"
#include "Console.h"
#include "EditorArguments.h"
#include "EditorHost.h"
#include "HostProblems.h"
#include "Misc/Paths.h"
#include "ProgressLine.h"
#include "ProjectArgument.h"
#include "StandardInput.h"
#include "Refusal.h"

#include <filesystem>
#include <unistd.h>

namespace AutomationCommand
{
	const double SecondsPerFrame = 1.0 / 60.0;

	/** As an engine runs tests on a build server. */
	FEditorHostOptions MakeOptions(const FString& Project, bool bRepair)
	{
		FEditorArguments Editor;
		Editor.bUnattended = true;
		Editor.bNullRhi = true;
		FEditorHostOptions Options = EditorArguments::MakeOptions(Project, Editor);
		Options.CommandLine += bRepair ? TEXT(" -VelmorantTestRepair") : TEXT("");
		if (Project.IsEmpty()) // an empty project of nobody, in memory only
		{
			const std::string Folder = (std::filesystem::temp_directory_path() / ("velmorant-automation-" + std::to_string(getpid()))).string();
			Options.Project = UTF8_TO_TCHAR(Folder.c_str());
			Options.UserSettingsDir = FPaths::Combine(Options.Project, TEXT("UserConfig"));
			Options.bWriteOverlay = true;
		}
		return Options;
	}

	FAutomationReport RunTests(const FString& Project, const FAutomationArguments& Arguments, void (*Print)(const FReportedTest&))
	{
		FEditorHost Editor(MakeOptions(Project, Arguments.bRepair));
		FAutomationReport Report;
		bool bAlive = true;
		for (const FAutomationTestInfo& Test : HostAutomation::Find(Arguments.Filter))
		{
			const FProgressLine Progress(Test.GetFullTestPath());
			const HostAutomation::FResult Result = bAlive ? HostAutomation::Run(
																Test, [&Editor] { Editor.Tick(SecondsPerFrame); }, bAlive)
														  : HostAutomation::FResult(Test);
			Report.Tests.Add(AutomationReport::Make(Result));
			Print(Report.Tests.Last());
		}
		Console::PrintProblems(HostProblems::GetAll());
		Report.bTrouble = !HostProblems::GetAll().IsEmpty();
		return Report;
	}

	EExitStatus List(const FString& Filter)
	{
		for (const FAutomationTestInfo& Test : HostAutomation::Find(Filter))
		{
			Console::Print(Test.GetFullTestPath());
		}
		return EExitStatus::Done;
	}

	EExitStatus TellAndExport(const FAutomationReport& Report, const FString& Folder)
	{
		AutomationText::PrintTotals(Report);
		HostProblems::Clear(); // those of the tests are told
		if (!Folder.IsEmpty() && (!AutomationReport::Write(Report, Folder) || !HostProblems::GetAll().IsEmpty()))
		{
			Console::PrintProblems(HostProblems::GetAll());
			return EExitStatus::Trouble;
		}
		if (Report.bTrouble)
		{
			return EExitStatus::Trouble;
		}
		return Report.CountPassed() == Report.Tests.Num() ? EExitStatus::Done : EExitStatus::Failed;
	}

	/** Whether the report is one of this suite's, and whole. */
	bool CheckReport(const FAutomationReport& Report, const FString& File)
	{
		if (!Report.Tests.ContainsByPredicate([](const FReportedTest& Test) { return AutomationText::IsOfSuite(Test.Path); }))
		{
			HostProblems::Report(File, 0, TEXT("The report holds no test of the toolkit"), TEXT("Run \"Automation RunTests Velmorant\" in the engine, with the module VelmorantProEditorTests listed in the plugin"));
		}
		else if (Report.CountUnfinished() > 0)
		{
			HostProblems::Report(File, 0, FString::Printf(TEXT("The report is incomplete: %d tests did not finish"), Report.CountUnfinished()), TEXT("Find out in the engine's log what ended the run, and export again"));
		}
		return HostProblems::GetAll().IsEmpty();
	}

	EExitStatus Compare(const FAutomationArguments& Arguments, const FString& Project)
	{
		const TOptional<FAutomationReport> InEngine = AutomationReport::Read(Arguments.Compare);
		if (!InEngine.IsSet())
		{
			Refusal::PrintProblems(EExitStatus::Trouble, false);
			return EExitStatus::Trouble;
		}
		const bool bWhole = CheckReport(*InEngine, Arguments.Compare);
		Refusal::PrintProblems(EExitStatus::Trouble, false);
		HostProblems::Clear();
		const FAutomationReport Here = RunTests(Project, Arguments, [](const FReportedTest&) {});
		const FAutomationComparison Comparison = AutomationComparison::Make(*InEngine, Here);
		AutomationComparison::Print(Comparison, *InEngine);
		if (!bWhole)
		{
			return EExitStatus::Trouble;
		}
		return Comparison.Agrees() ? EExitStatus::Done : EExitStatus::Failed;
	}

	EExitStatus Refuse(const FString& Reason)
	{
		Refusal::Print(EExitStatus::Usage, {Reason}, false);
		return EExitStatus::Usage;
	}
}

EExitStatus AutomationCommand::Run(FAutomationArguments Arguments)
{
	if (HostAutomation::Find(Arguments.Filter).IsEmpty())
	{
		return Refuse(FString::Printf(TEXT("No automation tests matched '%s'. --list shows the tests that there are."), *Arguments.Filter));
	}
	if (Arguments.bList)
	{
		return List(Arguments.Filter);
	}
	FString Project;
	if (!Arguments.Project.IsEmpty())
	{
		const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, false);
		if (End.IsSet())
		{
			return End.GetValue();
		}
	}
	else if (Arguments.Compare.IsEmpty())
	{
		return Refuse(TEXT("Name the project to run the tests in."));
	}
	const TOptional<EExitStatus> End = StandardInput::Take({&Arguments.Compare}, false);
	if (End.IsSet())
	{
		return End.GetValue();
	}
	if (!Arguments.Compare.IsEmpty())
	{
		return Compare(Arguments, Project);
	}
	return TellAndExport(RunTests(Project, Arguments, &AutomationText::PrintTest), Arguments.Report);
}
