// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <cstdlib>
#include <exception>

/** What should never happen, told to people who did not write the program. */
namespace ProgramFault
{
	/** For the programmers, VELMORANT_SHOW_FAULTS=1 adds what the code says. */
	inline FString Describe(const std::exception& Fault)
	{
		FString Text = TEXT("the editor could not go on, by a fault of the program; please report it with what led to it. VELMORANT_SHOW_FAULTS=1 shows more");
		if (std::getenv("VELMORANT_SHOW_FAULTS") != nullptr)
		{
			Text += FString(TEXT(":\n")) + UTF8_TO_TCHAR(Fault.what());
		}
		return Text;
	}
}
