// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** Pieces that the text forms of all property types are made of. */
namespace PropertyText
{
	/** In double quotes, with quotes, backslashes and line ends escaped. */
	void AppendQuoted(FString& Out, const FString& Text);

	/** Buffer starts with a double quote. @return what follows the closing one; null when it is missing. */
	const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& OutText);

	/**
	 * A text value: not delimited, all of Buffer; delimited, a quoted text, or what comes before the next comma or closing bracket,
	 * where single quotes keep brackets and commas together. @return what follows; null when a quote is missing.
	 */
	const TCHAR* ReadText(const TCHAR* Buffer, int32 PortFlags, FString& OutText);

	/** A word of letters, digits and _ - + . : / as names, enums and numbers are written; quoted ones, too. Null without one. */
	const TCHAR* ReadWord(const TCHAR* Buffer, FString& OutWord);

	const TCHAR* SkipBlanks(const TCHAR* Buffer);

	/** All of Text is one decimal or 0x number. */
	bool ParseInteger(const FString& Text, int64& OutValue);
	bool ParseFloat(const FString& Text, double& OutValue);

	/** "Class'/Path/A.A'" stands for the path inside. */
	FString StripClass(const FString& Text);
}
