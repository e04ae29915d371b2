// Copyright Velmorant. All Rights Reserved.
// Panels: opening them, and a person's hands and eyes on their widgets.

#include "Framework/Application/SlateApplication.h"
#include "HostSnapshot.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptSecrets.h"
#include "Run/ScriptTopics.h"
#include "Run/ScriptWidgets.h"
#include "Suggestions.h"
#include "WidgetBlueprint.h"

namespace PanelTopic
{
	/** Has a person do something to the widget of the first two arguments. */
	template<typename InputType>
	FStepResult GiveInput(FScriptContext& Context, const FScriptArguments& Arguments, InputType Input)
	{
		FString Error;
		const TSharedPtr<SWidget> Panel = ScriptWidgets::FindRoot(Context, Arguments[0], Error);
		if (!Panel.IsValid())
		{
			return FStepResult::Error(Error);
		}
		if (Context.Session.GetToolbar().FindOpenMenu(Arguments[0]) != Panel)
		{
			FSlateApplication::Get().DismissAllMenus(); // as a click beside them does
		}
		const FHostInputResult Result = Input(Panel.ToSharedRef(), Arguments[1]);
		return Result.bDone ? FStepResult::Done() : FStepResult::Error(ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Result.Reason));
	}

	/** The reason why a panel did not open, with those that there are unless it is one of them. */
	FString ExplainAsset(const FString& Path, const FString& Reason)
	{
		const TArray<FString> Panels = ScriptObjects::GetAssetPaths(UWidgetBlueprint::StaticClass());
		return Panels.Contains(ScriptObjects::PackageOf(Path)) ? Reason : Suggestions::Append(Reason, Path, Panels);
	}

	FStepResult Open(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const FString* Name = Arguments.FindOption(1, TEXT("as"));
		FString Reason;
		if (!ScriptWidgets::CheckUserInterface(Reason))
		{
			return FStepResult::Error(Reason);
		}
		const bool bOpened = Context.Session.GetPanels().Open(Arguments[0], Name != nullptr ? *Name : FString(), Reason) != nullptr;
		return bOpened ? FStepResult::Done() : FStepResult::Error(ExplainAsset(Arguments[0], Reason));
	}

	FStepResult Close(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Error;
		return ScriptWidgets::Close(Context, Arguments[0], Error) ? FStepResult::Done() : FStepResult::Error(Error);
	}

	FStepResult Click(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		return GiveInput(Context, Arguments, [](const TSharedRef<SWidget>& Root, const FString& Widget) { return HostSnapshot::Click(Root, Widget); });
	}

	/**
	 * Has a person put the third argument into the widget of the first two. It shows only where it would show on the screen: a word that
	 * goes nowhere might have been a password, too.
	 */
	template<typename InputType>
	FStepResult GiveText(FScriptContext& Context, const FScriptArguments& Arguments, InputType Input)
	{
		Context.Mask(Arguments.GetWordIndex(2));
		return GiveInput(Context, Arguments, [&](const TSharedRef<SWidget>& Root, const FString& Widget) {
			FString Reason;
			const TOptional<FHostWidgetDescription> Seen = HostSnapshot::Describe(Root, Widget, Reason);
			if (Seen.IsSet() && !Seen->bPassword)
			{
				Context.Unmask(Arguments.GetWordIndex(2));
			}
			return Input(Root, Widget);
		});
	}

	FStepResult Type(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Text;
		const FString Trouble = ScriptSecrets::Resolve(Arguments, 2, Text);
		if (!Trouble.IsEmpty())
		{
			return FStepResult::Error(Trouble);
		}
		FStepResult Result = GiveText(Context, Arguments, [&Text](const TSharedRef<SWidget>& Root, const FString& Widget) { return HostSnapshot::Type(Root, Widget, Text); });
		if (!Text.Equals(Arguments[2]))
		{
			Context.Unmask(Arguments.GetWordIndex(2)); // the script only says where the text comes from
		}
		return Result;
	}

	FStepResult Choose(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		return GiveText(Context, Arguments, [&Arguments](const TSharedRef<SWidget>& Root, const FString& Widget) { return HostSnapshot::Choose(Root, Widget, Arguments[2]); });
	}

	FStepResult Check(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		return GiveInput(Context, Arguments, [](const TSharedRef<SWidget>& Root, const FString& Widget) { return HostSnapshot::Check(Root, Widget, true); });
	}

	FStepResult Uncheck(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		return GiveInput(Context, Arguments, [](const TSharedRef<SWidget>& Root, const FString& Widget) { return HostSnapshot::Check(Root, Widget, false); });
	}

	FStepResult PrintSnapshot(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Error;
		const TSharedPtr<SWidget> Panel = ScriptWidgets::FindRoot(Context, Arguments[0], Error);
		if (!Panel.IsValid())
		{
			return FStepResult::Error(Error);
		}
		Context.Print(HostSnapshot::Take(Panel.ToSharedRef()).TrimEnd());
		return FStepResult::Done();
	}

	FStepResult PrintOptions(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Error;
		const TSharedPtr<SWidget> Panel = ScriptWidgets::FindRoot(Context, Arguments[0], Error);
		if (!Panel.IsValid())
		{
			return FStepResult::Error(Error);
		}
		for (const FString& Option : HostSnapshot::GetOptions(Panel.ToSharedRef(), Arguments[1], Error))
		{
			Context.Print(Option);
		}
		return Error.IsEmpty() ? FStepResult::Done() : FStepResult::Error(ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Error));
	}

	/** A word for something that can be seen of a widget. */
	struct FFact
	{
		const TCHAR* Word;
		bool (*Holds)(const FHostWidgetDescription& Seen);
	};

	const FFact Facts[] = {
		{TEXT("enabled"), [](const FHostWidgetDescription& Seen) { return Seen.bEnabled; }},
		{TEXT("disabled"), [](const FHostWidgetDescription& Seen) { return !Seen.bEnabled; }},
		{TEXT("visible"), [](const FHostWidgetDescription& Seen) { return Seen.bVisible; }},
		{TEXT("hidden"), [](const FHostWidgetDescription& Seen) { return !Seen.bVisible; }},
		{TEXT("checked"), [](const FHostWidgetDescription& Seen) { return Seen.Checked == ECheckBoxState::Checked; }},
		{TEXT("unchecked"), [](const FHostWidgetDescription& Seen) { return Seen.Checked == ECheckBoxState::Unchecked; }},
		{TEXT("read-only"), [](const FHostWidgetDescription& Seen) { return Seen.bReadOnly; }},
		{TEXT("selected"), [](const FHostWidgetDescription& Seen) { return Seen.bSelected; }},
		{TEXT("busy"), [](const FHostWidgetDescription& Seen) { return Seen.bBusy; }},
	};

	FExpectation LookAtState(const FHostWidgetDescription& Seen, const FString& Word)
	{
		for (const FFact& Fact : Facts)
		{
			if (Word.Equals(Fact.Word))
			{
				return {Fact.Holds(Seen), TEXT("it is not"), FString()};
			}
		}
		return FExpectation::Unanswerable(TEXT("a widget is enabled, disabled, visible, hidden, checked, unchecked, read-only, selected or busy"));
	}

	FString ReadOption(const FHostWidgetDescription& Seen, const FString& Option)
	{
		if (Option == TEXT("value"))
		{
			return Seen.Value.Get(FString());
		}
		if (Option == TEXT("error"))
		{
			return Seen.Error;
		}
		return Option == TEXT("label") ? Seen.Label : Seen.ToolTip;
	}

	FExpectation LookAtOption(const FHostWidgetDescription& Seen, const FString& Option, const FString& Value)
	{
		if (Option == TEXT("state"))
		{
			return LookAtState(Seen, Value);
		}
		const FString Shown = ReadOption(Seen, Option);
		return {Shown.Equals(Value), FString::Printf(TEXT("its %s is \"%s\""), *Option, *Shown), FString()};
	}

	/** All that follows the widget must hold. */
	FExpectation ExpectWidget(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		for (int32 Index = 3; Index < Arguments.Num(); Index += 2)
		{
			if (Arguments[Index - 1] != TEXT("state"))
			{
				Context.Mask(Arguments.GetWordIndex(Index)); // until it is known not to be a guess at a password
			}
		}
		FExpectation Result;
		const TSharedPtr<SWidget> Panel = ScriptWidgets::FindRoot(Context, Arguments[0], Result.Error);
		if (!Panel.IsValid())
		{
			return Result;
		}
		const TOptional<FHostWidgetDescription> Seen = HostSnapshot::Describe(Panel.ToSharedRef(), Arguments[1], Result.Found);
		if (!Seen.IsSet())
		{
			Result.Found = ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Result.Found);
			return Result;
		}
		Result.bHolds = true;
		for (int32 Index = 2; Index < Arguments.Num() && Result.bHolds; Index += 2)
		{
			if (Seen->bPassword && Arguments[Index] == TEXT("value"))
			{
				return FExpectation::Unanswerable(TEXT("the value of a password field cannot be looked at"));
			}
			if (!Seen->bPassword)
			{
				Context.Unmask(Arguments.GetWordIndex(Index + 1));
			}
			Result = LookAtOption(*Seen, Arguments[Index], Arguments[Index + 1]);
		}
		return Result;
	}

	FExpectation ExpectOption(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		const TSharedPtr<SWidget> Panel = ScriptWidgets::FindRoot(Context, Arguments[0], Result.Error);
		if (!Panel.IsValid())
		{
			return Result;
		}
		FString Reason;
		const TOptional<FHostWidgetDescription> Seen = HostSnapshot::Describe(Panel.ToSharedRef(), Arguments[1], Reason);
		if (Seen.IsSet() && Seen->bPassword)
		{
			Context.Mask(Arguments.GetWordIndex(2));
		}
		const TArray<FString> Options = HostSnapshot::GetOptions(Panel.ToSharedRef(), Arguments[1], Result.Error);
		Result.Error = ScriptWidgets::ExplainWidget(Context, Arguments[0], Arguments[1], Result.Error);
		Result.bHolds = Options.ContainsByPredicate([&Arguments](const FString& Option) { return Option.Equals(Arguments[2]); });
		Result.Found = FString(TEXT("the options are: ")) + FString::Join(Options, TEXT(", "));
		return Result;
	}

	FExpectation ExpectPanel(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		return {ScriptWidgets::FindRoot(Context, Arguments[0], Reason).IsValid(), TEXT("it is not open"), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("open"), TEXT("PANEL-ASSET [as NAME]"), 1, 1, TEXT("as")}, &Open},
		{{TEXT("close"), TEXT("PANEL"), 1, 1, TEXT("")}, &Close},
		{{TEXT("click"), TEXT("PANEL WIDGET"), 2, 2, TEXT("")}, &Click},
		{{TEXT("type"), TEXT("PANEL WIDGET TEXT|env:NAME"), 3, 3, TEXT("")}, &Type},
		{{TEXT("choose"), TEXT("PANEL WIDGET OPTION"), 3, 3, TEXT("")}, &Choose},
		{{TEXT("check"), TEXT("PANEL WIDGET"), 2, 2, TEXT("")}, &Check},
		{{TEXT("uncheck"), TEXT("PANEL WIDGET"), 2, 2, TEXT("")}, &Uncheck},
		{{TEXT("print snapshot"), TEXT("PANEL"), 1, 1, TEXT("")}, &PrintSnapshot},
		{{TEXT("print options"), TEXT("PANEL WIDGET"), 2, 2, TEXT("")}, &PrintOptions},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("panel"), TEXT("PANEL"), 1, 1, TEXT("")}, &ExpectPanel},
		{{TEXT("widget"), TEXT("PANEL WIDGET [value TEXT] [label TEXT] [tooltip TEXT] [error TEXT] [state STATE]"), 2, 2, TEXT("value label tooltip error state")}, &ExpectWidget},
		{{TEXT("option"), TEXT("PANEL WIDGET OPTION"), 3, 3, TEXT("")}, &ExpectOption},
	};
}

FScriptTopic ScriptTopics::GetPanels()
{
	return {PanelTopic::Commands, PanelTopic::Expectations};
}
