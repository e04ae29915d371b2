// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <string_view>

struct FHostProblem;

/** The program's two outputs, UTF-8, a line at a time and in the order of the calls. */
namespace Console
{
	void Print(const FString& Line);
	void PrintUtf8(std::string_view Line);
	void PrintError(const FString& Line);

	/** One line each on the error output. */
	void PrintProblems(const TArray<FHostProblem>& Problems);
}
