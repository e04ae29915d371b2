// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptSession.h"

/** What a command works on: the session, and the output of its step. */
class FScriptContext
{
public:
	FScriptContext(FScriptSession& InSession, int32 InLine)
		: Session(InSession)
		, Line(InLine)
	{
	}

	FScriptSession& Session;
	const int32 Line; // of the script, one-based

	/** Adds to the step's output; a text of several lines becomes several. */
	void Print(const FString& Text)
	{
		TArray<FString> Lines;
		Text.ParseIntoArrayLines(Lines, false);
		Output.Append(Lines);
	}

	const TArray<FString>& GetOutput() const { return Output; }

	/** From now on, the word of the script line reads as bullets in everything that is printed. */
	void Mask(int32 WordIndex) { Masked.AddUnique(WordIndex); }
	void Unmask(int32 WordIndex) { Masked.Remove(WordIndex); }
	bool IsMasked(int32 WordIndex) const { return Masked.Contains(WordIndex); }

private:
	TArray<FString> Output;
	TArray<int32> Masked;
};
