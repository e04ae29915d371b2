// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

class FScriptArguments;
struct FRunSummary;
struct FStepRecord;

/** Passwords: where scripts take them from, and that nothing which is told repeats them. */
namespace ScriptSecrets
{
	/**
	 * What is to be typed: the word itself, or for env:NAME without quotes the value of that environment variable. One that is not set is
	 * asked for on the terminal, without echo, unless nobody is there. @return what is wrong; empty when there is a text
	 */
	FString Resolve(const FScriptArguments& Arguments, int32 Index, FString& OutText);

	/** Puts bullets in the place of all that password fields ever held. */
	void Hide(FStepRecord& Record);
	void Hide(FRunSummary& Summary);
}
