// Copyright Velmorant. All Rights Reserved.

#include "Install/InstallCommand.h"

#include "Check/UnifiedDifference.h"
#include "Console.h"
#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "Install/ContractText.h"
#include "Install/ModuleInstall.h"
#include "ProgressLine.h"
#include "Refusal.h"

#include <optional>
#include <string_view>

namespace InstallCommand
{
	void PrintList(const TCHAR* Heading, const TArray<FString>& Lines)
	{
		if (!Lines.IsEmpty())
		{
			Console::Print(Heading, ETextStyle::Heading);
		}
		for (const FString& Line : Lines)
		{
			Console::Print(TEXT("  ") + Line);
		}
	}

	void PrintDifference(const FInstallPlan& Plan)
	{
		for (const FInstallFile& File : Plan.Files)
		{
			const std::string Name(TCHAR_TO_UTF8(*File.Path));
			const bool bText = !File.Text.empty();
			const std::string_view Old = bText ? File.OldText : File.OldBytes;
			const std::string Difference = UnifiedDifference::Make(Name, File.bExists ? std::optional(Old) : std::nullopt, bText ? File.Text : File.Bytes);
			Console::PrintDifference(Difference);
		}
	}

	EExitStatus Tell(const TCHAR* Verdict, EExitStatus Status)
	{
		Console::Print(Verdict, Status == EExitStatus::Done ? ETextStyle::Good : ETextStyle::Bad);
		Console::PrintProblems(HostProblems::GetAll());
		return Status;
	}

	EExitStatus Do(const FInstallPlan& Plan, bool bDryRun)
	{
		const bool bStopped = !Plan.Obstacles.IsEmpty() || !Plan.Contract.IsSound();
		if (bDryRun)
		{
			PrintDifference(Plan);
		}
		if (!ModuleInstall::CheckWritable(Plan) || !HostProblems::GetAll().IsEmpty())
		{
			return Tell(TEXT("Not installed: nothing was changed."), EExitStatus::Trouble);
		}
		if (bStopped)
		{
			return Tell(TEXT("Not installed: nothing was changed. What is listed above keeps the module from it."), EExitStatus::Failed);
		}
		if (!Plan.HasWork())
		{
			return Tell(TEXT("The module is installed already: nothing was changed."), EExitStatus::Done);
		}
		if (bDryRun)
		{
			return Tell(TEXT("Nothing was changed: this is what an installation would do."), EExitStatus::Done);
		}
		if (!ModuleInstall::Apply(Plan))
		{
			return Tell(TEXT("Not installed completely. Once that is put right, another run completes it."), EExitStatus::Trouble);
		}
		if (!HostProblems::GetAll().IsEmpty())
		{
			return Tell(TEXT("Installed, but a power loss may take it away."), EExitStatus::Trouble);
		}
		return Tell(TEXT("Installed."), EExitStatus::Done);
	}
}

EExitStatus InstallCommand::Run(const FInstallArguments& Arguments)
{
	const FString Descriptor = ModuleInstall::FindDescriptor(Arguments.PluginFolder);
	if (Descriptor.IsEmpty())
	{
		Refusal::PrintProblems(EExitStatus::Usage, false);
		return EExitStatus::Usage;
	}
	const HostFiles::FLock Lock(Descriptor); // two installations would look at each other's half-finished work
	const FProgressLine Progress(TEXT("looking at the plugin"));
	const TOptional<FInstallPlan> Plan = ModuleInstall::Plan(Descriptor, {Arguments.bWithTests, Arguments.bForce});
	if (!Plan.IsSet())
	{
		Refusal::PrintProblems(EExitStatus::Trouble, false);
		return EExitStatus::Trouble;
	}
	ContractText::Print(Plan->Contract);
	PrintList(TEXT("In the way"), Plan->Obstacles);
	PrintList(TEXT("Descriptor"), Plan->DescriptorChanges);
	PrintList(TEXT("Remarks"), Plan->Remarks);
	Console::Print(FString::Printf(TEXT("%s: %d files to write, %d are as they are to be."), *Plan->PluginFolder, Plan->Files.Num(), Plan->NumUpToDate));
	return Do(*Plan, Arguments.bDryRun);
}
