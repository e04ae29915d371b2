// Copyright Velmorant. All Rights Reserved.

#include "Run/PreparedAnswers.h"

void FPreparedAnswers::Prepare(FName Kind, const FHostAnswer& InAnswer, int32 ScriptLine)
{
	Answers.Add(FPreparedAnswer{Kind, InAnswer, ScriptLine});
}

TOptional<FHostAnswer> FPreparedAnswers::Answer(const FHostQuestion& Question)
{
	const int32 Index = Answers.IndexOfByPredicate([&Question](const FPreparedAnswer& Each) { return Each.Kind == Question.Kind; });
	if (Index == INDEX_NONE)
	{
		return TOptional<FHostAnswer>();
	}
	const FPreparedAnswer Prepared = Answers[Index];
	Answers.RemoveAt(Index);
	if (!Question.Choices.ContainsByPredicate([&Prepared](const FString& Choice) { return Choice.Equals(Prepared.Answer.Choice); }))
	{
		Trouble = FString::Printf(TEXT("the answer of line %d, \"%s\", is not one of: %s"), Prepared.ScriptLine, *Prepared.Answer.Choice,
			*FString::Join(Question.Choices, TEXT(", ")));
	}
	for (const TPair<FString, FString>& Field : Prepared.Answer.Fields)
	{
		if (!Question.Fields.Contains(Field.Key))
		{
			Trouble = FString::Printf(TEXT("the answer of line %d gives \"%s\", which was not asked for"), Prepared.ScriptLine, *Field.Key);
		}
	}
	return Prepared.Answer;
}

FString FPreparedAnswers::TakeTrouble()
{
	FString Taken = MoveTemp(Trouble);
	Trouble = FString();
	return Taken;
}

TArray<int32> FPreparedAnswers::GetUnused() const
{
	TArray<int32> Lines;
	for (const FPreparedAnswer& Each : Answers)
	{
		Lines.Add(Each.ScriptLine);
	}
	return Lines;
}
