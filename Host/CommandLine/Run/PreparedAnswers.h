// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostQuestions.h"

/** Answers that a script gives before the editor asks. */
class FPreparedAnswers
{
public:
	/** Answers the next question of this kind that has no answer yet. */
	void Prepare(FName Kind, const FHostAnswer& Answer, int32 ScriptLine);

	/** Takes the answer of a question; unset when none is prepared. */
	TOptional<FHostAnswer> Answer(const FHostQuestion& Question);

	/** What an answer failed at since the last call; empty when nothing did. */
	FString TakeTrouble();

	/** Script lines of answers that nothing asked for. */
	TArray<int32> GetUnused() const;

private:
	struct FPreparedAnswer
	{
		FName Kind;
		FHostAnswer Answer;
		int32 ScriptLine = 0;
	};

	TArray<FPreparedAnswer> Answers; // not asked for yet
	FString Trouble;
};
