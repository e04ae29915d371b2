// Copyright Velmorant. All Rights Reserved.
// Questions: answers prepared for the dialogs that will come, and what was asked.

#include "HostQuestions.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"

namespace QuestionTopic
{
	bool IsKind(const FString& Kind)
	{
		return Kind.Equals(TEXT("SaveAsset")) || Kind.Equals(TEXT("ReplaceAsset")) || Kind.Equals(TEXT("DeleteAssets")) || Kind.Equals(TEXT("ReadOnlyFile")) || Kind.Equals(TEXT("Message"));
	}

	FStepResult Answer(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		if (!IsKind(Arguments[0]))
		{
			return FStepResult::Error(TEXT("questions are of the kinds SaveAsset, ReplaceAsset, DeleteAssets, ReadOnlyFile and Message"));
		}
		FHostAnswer Prepared;
		Prepared.Choice = Arguments[1];
		for (int32 Index = 2; Index < Arguments.Num(); ++Index)
		{
			FString Field;
			FString Value;
			if (!Arguments[Index].Split(TEXT("="), &Field, &Value))
			{
				return FStepResult::Error(FString::Printf(TEXT("\"%s\" is not FIELD=VALUE"), *Arguments[Index]));
			}
			Prepared.Fields.Add(Field, Value);
		}
		Context.Session.GetAnswers().Prepare(ScriptObjects::ToName(Arguments[0]), Prepared, Context.Line);
		return FStepResult::Done();
	}

	FString Describe(const FAskedQuestion& Asked)
	{
		return FString::Printf(TEXT("%s: %s -> %s"), *Asked.Question.Kind.ToString(), *Asked.Question.Message.ToString(), *Asked.Answer.Choice);
	}

	FStepResult PrintQuestions(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FAskedQuestion& Asked : HostQuestions::GetAsked())
		{
			Context.Print(Describe(Asked));
		}
		return FStepResult::Done();
	}

	FExpectation ExpectQuestion(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FString* Choice = Arguments.FindOption(1, TEXT("choice"));
		const FString* Text = Arguments.FindOption(1, TEXT("text"));
		FExpectation Result;
		Result.Found = TEXT("asked was:");
		for (const FAskedQuestion& Asked : HostQuestions::GetAsked())
		{
			Result.bHolds |= Asked.Question.Kind == ScriptObjects::ToName(Arguments[0]) && (Choice == nullptr || Asked.Answer.Choice.Equals(*Choice)) &&
				(Text == nullptr || Asked.Question.Message.ToString().Contains(*Text, ESearchCase::CaseSensitive));
			Result.Found += TEXT(" ") + Describe(Asked) + TEXT(";");
		}
		return Result;
	}

	const FScriptCommand Commands[] = {
		{{TEXT("answer"), TEXT("KIND CHOICE [FIELD=VALUE ...]"), 2, FScriptSyntax::Any, TEXT("")}, &Answer},
		{{TEXT("print questions"), TEXT(""), 0, 0, TEXT("")}, &PrintQuestions},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("question"), TEXT("KIND [choice CHOICE] [text PART]"), 1, 1, TEXT("choice text")}, &ExpectQuestion},
	};
}

FScriptTopic ScriptTopics::GetQuestions()
{
	return {QuestionTopic::Commands, QuestionTopic::Expectations};
}
