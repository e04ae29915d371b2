// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "TerminalStyle.h"

#include <string_view>

struct FHostProblem;

/**
 * The program's two outputs, UTF-8, a line at a time and in the order of the calls. All that people read goes through here, and nothing in
 * it moves a terminal's cursor or turns its writing round: such characters are shown by their numbers (TerminalText). What the standard
 * output does not take, because its disk is full or nobody reads it any more, is lost: the program must not end as if it had been told.
 */
namespace Console
{
	/** To be called before anything is printed or opened. */
	void Prepare();

	/** Hands on what was printed. False once anything of it was lost. */
	bool Flush();

	/** Flushes for the last time and tells on the error output what was lost. False when something was. */
	bool Finish();

	void Print(const FString& Line, ETextStyle Style = ETextStyle::Plain);
	void PrintUtf8(std::string_view Line, ETextStyle Style = ETextStyle::Plain);
	void PrintError(const FString& Line, ETextStyle Style = ETextStyle::Bad);

	/** Text of the program's own with line ends in it, such as help. */
	void PrintLines(const FString& Text);
	void PrintErrorLines(const FString& Text);

	/** For programs, as it is: JSON, whose strings have escapes of their own. */
	void PrintExact(std::string_view Text);

	/** A unified difference; nothing for an empty one. For patch, as it is, unless a terminal shows it. */
	void PrintDifference(std::string_view Difference);

	/** One line each on the error output. */
	void PrintProblems(const TArray<FHostProblem>& Problems);
}
