// Copyright Velmorant. All Rights Reserved.

#include "Arguments.h"
#include "Automation/AutomationCommand.h"
#include "Check/CheckCommand.h"
#include "Console.h"
#include "HostLocale.h"
#include "ProgramFault.h"
#include "Run/RunCommand.h"

#include <exception>

namespace VelmorantMain
{
	EExitStatus Run(const FArguments& Arguments)
	{
		if (Arguments.Check.IsSet())
		{
			return CheckCommand::Run(Arguments.Check.GetValue());
		}
		if (Arguments.Automation.IsSet())
		{
			return AutomationCommand::Run(Arguments.Automation.GetValue());
		}
		return RunCommand::Run(Arguments.Run.GetValue());
	}

	EExitStatus RunGuarded(const FArguments& Arguments)
	{
		try
		{
			return Run(Arguments);
		}
		catch (const std::exception& Fault) // of the editor, or memory that ran out
		{
			Console::PrintError(FString(TEXT("velmorant: ")) + ProgramFault::Describe(Fault));
		}
		return EExitStatus::Trouble;
	}
}

int main(int Count, char** Values)
{
	Console::Prepare();
	HostLocale::UseUnicodeCharacterClasses();
	FArguments Arguments;
	const TOptional<EExitStatus> End = Arguments::Parse(Count, Values, Arguments);
	const EExitStatus Status = End.IsSet() ? End.GetValue() : VelmorantMain::RunGuarded(Arguments);
	return static_cast<int>(Console::Finish() ? Status : EExitStatus::Trouble);
}
