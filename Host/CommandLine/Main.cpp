// Copyright Velmorant. All Rights Reserved.

#include "Arguments.h"
#include "Check/CheckCommand.h"
#include "Console.h"
#include "Containers/StringConv.h"
#include "HostAssertions.h"
#include "HostLocale.h"
#include "Run/RunCommand.h"

#include <exception>

namespace VelmorantMain
{
	EExitStatus Run(const FArguments& Arguments)
	{
		return Arguments.Check.IsSet() ? CheckCommand::Run(Arguments.Check.GetValue()) : RunCommand::Run(Arguments.Run.GetValue());
	}

	EExitStatus RunGuarded(const FArguments& Arguments)
	{
		try
		{
			return Run(Arguments);
		}
		catch (const FHostAssertionFailure& Failure)
		{
			Console::PrintError(FString(TEXT("velmorant: the editor could not go on: ")) + UTF8_TO_TCHAR(Failure.what()));
		}
		catch (const std::exception& Error)
		{
			Console::PrintError(FString(TEXT("velmorant: ")) + UTF8_TO_TCHAR(Error.what()));
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
