// Copyright Velmorant. All Rights Reserved.

#include "Arguments.h"
#include "Check/CheckCommand.h"
#include "Console.h"
#include "HostLocale.h"
#include "HostPaths.h"
#include "Install/ContractCommand.h"
#include "Install/InstallCommand.h"
#include "ProgramFault.h"
#include "Refusal.h"
#include "Run/RunCommand.h"
#include "Scripts/ToolkitScripts.h"

#include <exception>

namespace VelmorantMain
{
	/** Without what comes with the program, projects would get a wrong verdict. */
	bool HasData(bool bJson)
	{
		const FString Missing = HostPaths::FindMissingProgramData();
		if (!Missing.IsEmpty())
		{
			Refusal::Print(EExitStatus::Trouble, {FString::Printf(TEXT("%s is missing. It comes with the program: install it anew, and keep its folders bin and share side by side."), *Missing)}, bJson);
		}
		return Missing.IsEmpty();
	}

	EExitStatus Run(const FArguments& Arguments)
	{
		const bool bJson = (Arguments.Check.IsSet() && Arguments.Check->bJson) || (Arguments.Run.IsSet() && Arguments.Run->bJson);
		if (!HasData(bJson))
		{
			return EExitStatus::Trouble;
		}
		if (Arguments.Check.IsSet())
		{
			return CheckCommand::Run(Arguments.Check.GetValue());
		}
		if (Arguments.Automation.IsSet())
		{
			return AutomationCommand::Run(Arguments.Automation.GetValue());
		}
		if (Arguments.Install.IsSet())
		{
			return InstallCommand::Run(Arguments.Install.GetValue());
		}
		return Arguments.Contract.IsSet() ? ContractCommand::Run(Arguments.Contract.GetValue()) : RunCommand::Run(Arguments.Run.GetValue());
	}

	EExitStatus RunGuarded(const FArguments& Arguments)
	{
		try
		{
			return Run(Arguments);
		}
		catch (const std::exception& Fault) // of the editor, or memory that ran out
		{
			Console::PrintErrorLines(FString(TEXT("velmorant: ")) + ProgramFault::Describe(Fault));
		}
		return EExitStatus::Trouble;
	}
}

int main(int Count, char** Values)
{
	Console::Prepare();
	HostLocale::UseUnicodeCharacterClasses();
	ScriptExtension::Set(ToolkitScripts::MakeExtension());
	FArguments Arguments;
	const TOptional<EExitStatus> End = Arguments::Parse(Count, Values, Arguments);
	const EExitStatus Status = End.IsSet() ? End.GetValue() : VelmorantMain::RunGuarded(Arguments);
	return static_cast<int>(Console::Finish() ? Status : EExitStatus::Trouble);
}
