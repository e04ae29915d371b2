// Copyright Velmorant. All Rights Reserved.
// Details panels: opening them, and what their rows and lists show. Rows are widgets of the panel; a person's input is that of panels.

#include "HostSnapshot.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"
#include "Run/ScriptWidgets.h"

namespace DetailsTopic
{
	const TCHAR* const DefaultName = TEXT("Details");
	const TCHAR* const AsWord = TEXT("as");

	/** "OBJECT … [as NAME]" */
	FStepResult Inspect(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Missing;
		if (!ScriptWidgets::CheckUserInterface(Missing))
		{
			return FStepResult::Error(Missing);
		}
		const bool bNamed = Arguments.Num() >= 3 && Arguments[Arguments.Num() - 2].Equals(AsWord);
		const FString Name = bNamed ? Arguments[Arguments.Num() - 1] : FString(DefaultName);
		TArray<UObject*> Objects;
		for (int32 Index = 0; Index < Arguments.Num() - (bNamed ? 2 : 0); ++Index)
		{
			FString Reason;
			UObject* Object = ScriptObjects::Find(Context, Arguments[Index], Reason);
			if (Object == nullptr)
			{
				return FStepResult::Error(Reason);
			}
			Objects.Add(Object);
		}
		if (Context.Session.GetPanels().Find(Name) != nullptr)
		{
			return FStepResult::Error(FString::Printf(TEXT("a panel named %s is open already, and it is no details panel"), *Name));
		}
		Context.Session.GetDetails().Show(Name, Objects);
		return FStepResult::Done();
	}

	FHostDetailsView* FindDetails(FScriptContext& Context, const FString& Name, FString& OutError)
	{
		FHostDetailsView* View = Context.Session.GetDetails().Find(Name);
		if (View == nullptr)
		{
			OutError = FString::Printf(TEXT("no details panel named %s is open; open one with: inspect OBJECT as %s"), *Name, *Name);
		}
		return View;
	}

	FStepResult PrintRows(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Error;
		FHostDetailsView* View = FindDetails(Context, Arguments[0], Error);
		if (View == nullptr)
		{
			return FStepResult::Error(Error);
		}
		for (const FString& Title : View->GetRowTitles())
		{
			Context.Print(Title);
		}
		return FStepResult::Done();
	}

	FExpectation ExpectRow(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		FHostDetailsView* View = FindDetails(Context, Arguments[0], Result.Error);
		if (View == nullptr)
		{
			return Result;
		}
		const TOptional<FString> Seen = HostSnapshot::Read(View->GetWidget(), Arguments[1], Result.Found);
		if (!Seen.IsSet())
		{
			Result.Found = ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Result.Found);
			return Result;
		}
		const FString* Value = Arguments.FindOption(2, TEXT("value"));
		const TOptional<FHostWidgetDescription> Widget = HostSnapshot::Describe(View->GetWidget(), Arguments[1], Result.Found);
		if (Value != nullptr && Widget.IsSet() && Widget->bPassword)
		{
			Context.Mask(Arguments.GetWordIndex(3));
			return FExpectation::Unanswerable(TEXT("the value of a password field cannot be looked at"));
		}
		Result.bHolds = Value == nullptr || Seen->Equals(*Value);
		Result.Found = FString::Printf(TEXT("it shows \"%s\""), *Seen.GetValue());
		return Result;
	}

	/** The number in front of "items" or "item" among the facts about a list; unset for what is no list. */
	TOptional<int32> CountItems(const FHostWidgetDescription& Seen)
	{
		for (const FString& Note : Seen.Notes)
		{
			FString Number;
			FString Unit;
			if (Note.Split(TEXT(" "), &Number, &Unit) && Number.IsNumeric() && (Unit.Equals(TEXT("items")) || Unit.Equals(TEXT("item"))))
			{
				return FCString::Atoi(*Number);
			}
		}
		return {};
	}

	/** The list meant, or the first one within what is meant. */
	TOptional<int32> FindCount(SWidget& Widget)
	{
		TOptional<int32> Count = CountItems(FHostWidgetAccess::Describe(Widget));
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Widget))
		{
			Count = Count.IsSet() ? Count : FindCount(*Child);
		}
		return Count;
	}

	FExpectation ExpectItems(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		if (!Arguments[2].IsNumeric())
		{
			return FExpectation::Unanswerable(FString::Printf(TEXT("\"%s\" is no number"), *Arguments[2]));
		}
		const TSharedPtr<SWidget> Root = ScriptWidgets::FindRoot(Context, Arguments[0], Result.Error);
		const TSharedPtr<SWidget> Widget = Root.IsValid() ? HostSnapshot::Find(Root.ToSharedRef(), Arguments[1], Result.Found) : nullptr;
		if (!Widget.IsValid())
		{
			Result.Found = ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Result.Found);
			return Result;
		}
		const TOptional<int32> Count = FindCount(*Widget);
		if (!Count.IsSet())
		{
			return FExpectation::Unanswerable(FString::Printf(TEXT("%s holds no list"), *Arguments[1]));
		}
		Result.bHolds = Count.GetValue() == FCString::Atoi(*Arguments[2]);
		Result.Found = FString::Printf(TEXT("there are %d"), Count.GetValue());
		return Result;
	}

	const FScriptCommand Commands[] = {
		{{TEXT("inspect"), TEXT("OBJECT [OBJECT …] [as NAME]"), 1, FScriptSyntax::Any, TEXT("")}, &Inspect},
		{{TEXT("print rows"), TEXT("DETAILS"), 1, 1, TEXT("")}, &PrintRows},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("row"), TEXT("DETAILS ROW [value TEXT]"), 2, 2, TEXT("value")}, &ExpectRow},
		{{TEXT("items"), TEXT("PANEL WIDGET NUMBER"), 3, 3, TEXT("")}, &ExpectItems},
	};
}

FScriptTopic ScriptTopics::GetDetails()
{
	return {DetailsTopic::Commands, DetailsTopic::Expectations};
}
