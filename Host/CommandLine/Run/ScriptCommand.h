// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/UnrealString.h"
#include "Run/ScriptLine.h"

class FScriptContext;

/** The words behind a command's name. */
class FScriptArguments
{
public:
	FScriptArguments() = default;
	FScriptArguments(const FScriptLine& Line, int32 InFirstWord)
		: Words(TConstArrayView<FScriptWord>(Line.Words).RightChop(InFirstWord))
		, FirstWord(InFirstWord)
	{
	}

	int32 Num() const { return Words.Num(); }
	const FString& operator[](int32 Index) const { return Words[Index].Text; }

	bool IsQuoted(int32 Index) const { return Words[Index].bQuoted; }

	/** Which word of the line an argument is. */
	int32 GetWordIndex(int32 Index) const { return FirstWord + Index; }

	/** The word behind Option, which stands at First or later, at every second place; null without one. */
	const FString* FindOption(int32 First, const TCHAR* Option) const;

private:
	TConstArrayView<FScriptWord> Words;
	int32 FirstWord = 0;
};

enum class EStepOutcome : uint8
{
	Done,
	Failed, // an expectation did not hold, or there was nothing to do
	Error, // the step could not be done
};

struct FStepResult
{
	EStepOutcome Outcome = EStepOutcome::Done;
	FString Message; // empty when done

	static FStepResult Done() { return {}; }
	static FStepResult Failed(const FString& InMessage) { return {EStepOutcome::Failed, InMessage}; }
	static FStepResult Error(const FString& InMessage) { return {EStepOutcome::Error, InMessage}; }
};

/** Whether what a script expects is so. */
struct FExpectation
{
	bool bHolds = false;
	FString Found; // what is there instead, half a sentence
	FString Error; // set when the question makes no sense, such as one about a panel that is not open

	static FExpectation Unanswerable(const FString& InError) { return {false, FString(), InError}; }
};

/** How a command is written; the part that commands and expectations have in common. */
struct FScriptSyntax
{
	const TCHAR* Name; // one or two words
	const TCHAR* Usage; // what follows the name
	int32 MinArguments;
	int32 MaxArguments; // those that are not options; Any without limit
	const TCHAR* Options; // words that may follow in pairs with a value, separated by blanks; may be empty

	static constexpr int32 Any = -1;
};

struct FScriptCommand
{
	FScriptSyntax Syntax;
	FStepResult (*Run)(FScriptContext& Context, const FScriptArguments& Arguments);
};

/** "expect NAME …", and "expect no NAME …" for the opposite. */
struct FScriptExpectation
{
	FScriptSyntax Syntax;
	FExpectation (*Look)(FScriptContext& Context, const FScriptArguments& Arguments);
};

/** The commands of one topic; tables that live as long as the process. */
struct FScriptTopic
{
	TConstArrayView<FScriptCommand> Commands;
	TConstArrayView<FScriptExpectation> Expectations;
};
