// Copyright Velmorant. All Rights Reserved.
// Taking steps back and doing them again.

#include "Editor.h"
#include "Editor/Transactor.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptTopics.h"

namespace UndoTopic
{
	/** How many steps of the queue, from its beginning, are not undone. */
	int32 CountDone(const UTransactor& Steps)
	{
		return Steps.GetQueueLength() - Steps.GetUndoCount();
	}

	FString GetTitle(const UTransactor& Steps, int32 Index)
	{
		return Steps.GetTransaction(Index)->GetTitle().ToString();
	}

	FStepResult Undo(FScriptContext& Context, const FScriptArguments&)
	{
		const UTransactor& Steps = *GEditor->Trans;
		const int32 Next = CountDone(Steps) - 1;
		if (Next < 0)
		{
			return FStepResult::Failed(TEXT("there is nothing to undo"));
		}
		const FString Title = GetTitle(Steps, Next);
		if (!GEditor->UndoTransaction())
		{
			return FStepResult::Error(TEXT("the editor cannot undo just now"));
		}
		Context.Print(TEXT("undone: ") + Title);
		return FStepResult::Done();
	}

	FStepResult Redo(FScriptContext& Context, const FScriptArguments&)
	{
		const UTransactor& Steps = *GEditor->Trans;
		const int32 Next = CountDone(Steps);
		if (Next == Steps.GetQueueLength())
		{
			return FStepResult::Failed(TEXT("there is nothing to redo"));
		}
		const FString Title = GetTitle(Steps, Next);
		if (!GEditor->RedoTransaction())
		{
			return FStepResult::Error(TEXT("the editor cannot redo just now"));
		}
		Context.Print(TEXT("redone: ") + Title);
		return FStepResult::Done();
	}

	FStepResult PrintUndo(FScriptContext& Context, const FScriptArguments&)
	{
		const UTransactor& Steps = *GEditor->Trans;
		const int32 NumDone = CountDone(Steps);
		for (int32 Index = 0; Index < Steps.GetQueueLength(); ++Index)
		{
			FString Line = GetTitle(Steps, Index);
			Line += Index >= NumDone ? TEXT(" (undone)") : TEXT("");
			Line += Index == NumDone - 1 ? TEXT(" <- undo") : TEXT("");
			Line += Index == NumDone ? TEXT(" <- redo") : TEXT("");
			Context.Print(Line);
		}
		return FStepResult::Done();
	}

	const FScriptCommand Commands[] = {
		{{TEXT("undo"), TEXT(""), 0, 0, TEXT("")}, &Undo},
		{{TEXT("redo"), TEXT(""), 0, 0, TEXT("")}, &Redo},
		{{TEXT("print undo"), TEXT(""), 0, 0, TEXT("")}, &PrintUndo},
	};
}

FScriptTopic ScriptTopics::GetUndo()
{
	return {UndoTopic::Commands, {}};
}
