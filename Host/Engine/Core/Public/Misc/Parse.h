// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "UObject/NameTypes.h"

/** Reads values out of command lines and property texts. Nothing is written when a value is absent. Match includes the '='. */
struct FParse
{
	/** The text behind Match: a quoted one whole; else up to a blank and, with bShouldStopOnSeparator, a comma or a closing parenthesis. */
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator = true);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FName& Name);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int8& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int32& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int64& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, float& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, double& Value);

	/** Whether "-Param" or "/Param" stands in the stream as a word of its own. */
	static bool Param(const TCHAR* Stream, const TCHAR* Param);
};
