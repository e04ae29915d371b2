// Copyright Velmorant. All Rights Reserved.
// Calls of functions that Blueprints and editor scripts may call.

#include "Run/FunctionCall.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptProperties.h"
#include "Run/ScriptTopics.h"
#include "Suggestions.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace CallTopic
{
	struct FTarget
	{
		UObject* Object = nullptr;
		UFunction* Function = nullptr;
	};

	/** What stands before the last dot: an object, else a class, whose functions must be static then. */
	UObject* FindObject(FScriptContext& Context, const FString& Text, bool& bOutClass, FString& OutReason)
	{
		UObject* Object = ScriptObjects::Find(Context, Text, OutReason);
		const bool bMayBeClass = !Text.StartsWith(TEXT("/")) && !Text.Contains(TEXT(":"));
		bOutClass = Object == nullptr && bMayBeClass;
		if (bOutClass)
		{
			const UClass* Class = ScriptObjects::FindClass(Text, OutReason);
			Object = Class != nullptr ? Class->GetDefaultObject() : nullptr;
			if (Object == nullptr)
			{
				OutReason = FString::Printf(TEXT("%s is neither an open panel nor a class"), *Text);
				OutReason = Suggestions::Append(OutReason, Text, ScriptObjects::GetClassNames(), Suggestions::EList::No);
			}
		}
		return Object;
	}

	/** Those that scripts may call. */
	TArray<FString> GetFunctionNames(const UClass& Class)
	{
		TArray<FString> Names;
		for (const UFunction* Function : TFieldRange<UFunction>(&Class))
		{
			if (Function->HasAnyFunctionFlags(FUNC_BlueprintCallable))
			{
				Names.Add(Function->GetName());
			}
		}
		return Names;
	}

	/** "Object.Function". False with a reason. */
	bool FindTarget(FScriptContext& Context, const FString& Text, FTarget& OutTarget, FString& OutReason)
	{
		FString ObjectText;
		FString FunctionText;
		if (!Text.Split(TEXT("."), &ObjectText, &FunctionText, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
		{
			OutReason = TEXT("functions are named CLASS.FUNCTION or PANEL.FUNCTION");
			return false;
		}
		bool bClass = false;
		OutTarget.Object = FindObject(Context, ObjectText, bClass, OutReason);
		if (OutTarget.Object == nullptr)
		{
			return false;
		}
		OutTarget.Function = OutTarget.Object->GetClass()->FindFunctionByName(ScriptObjects::ToName(FunctionText));
		if (OutTarget.Function == nullptr)
		{
			OutReason = Suggestions::Append(FString::Printf(TEXT("%s has no function %s"), *ObjectText, *FunctionText), FunctionText, GetFunctionNames(*OutTarget.Object->GetClass()));
			return false;
		}
		if (!OutTarget.Function->HasAnyFunctionFlags(FUNC_BlueprintCallable))
		{
			OutReason = FString::Printf(TEXT("Blueprints cannot call %s of %s, and neither can scripts; it would have to be BlueprintCallable"), *FunctionText, *ObjectText);
			return false;
		}
		if (bClass && !OutTarget.Function->HasAnyFunctionFlags(FUNC_Static))
		{
			OutReason = FString::Printf(TEXT("%s is a function of objects; name one"), *FunctionText);
			return false;
		}
		return true;
	}

	FStepResult Call(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FTarget Target;
		FString Problem;
		if (!FindTarget(Context, Arguments[0], Target, Problem))
		{
			return FStepResult::Error(Problem);
		}
		TArray<FString> Texts;
		for (int32 Index = 1; Index < Arguments.Num(); ++Index)
		{
			Texts.Add(Arguments[Index]);
		}
		FFunctionCall FunctionCall(*Target.Function);
		Problem = FunctionCall.SetArguments(Texts);
		if (!Problem.IsEmpty())
		{
			return FStepResult::Error(Problem);
		}
		FunctionCall.Run(*Target.Object);
		Context.Session.LastResult = FunctionCall.GetResult();
		if (!Context.Session.LastResult.IsEmpty())
		{
			Context.Print(FString(TEXT("= ")) + Context.Session.LastResult);
		}
		return FStepResult::Done();
	}

	FExpectation ExpectResult(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const FString& Result = Context.Session.LastResult;
		return {ScriptProperties::AreEqual(Result, Arguments[0]), FString::Printf(TEXT("it is \"%s\""), *Result), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("call"), TEXT("CLASS.FUNCTION|PANEL.FUNCTION [ARGUMENT ...]"), 1, FScriptSyntax::Any, TEXT("")}, &Call},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("result"), TEXT("VALUE"), 1, 1, TEXT("")}, &ExpectResult},
	};
}

FScriptTopic ScriptTopics::GetCalls()
{
	return {CallTopic::Commands, CallTopic::Expectations};
}
