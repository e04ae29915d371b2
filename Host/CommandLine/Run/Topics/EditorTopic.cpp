// Copyright Velmorant. All Rights Reserved.
// The editor as a whole: time, saving, restarting, log and clipboard.

#include "HAL/PlatformApplicationMisc.h"
#include "HostLog.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"
#include "UObject/Package.h"

#include <cmath>

namespace EditorTopic
{
	const double LongestWait = 86400.0; // seconds; a longer one is a slip of the pen

	FStepResult Heading(FScriptContext&, const FScriptArguments&)
	{
		return FStepResult::Done(); // the report shows it
	}

	FStepResult Wait(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const double Seconds = FCString::Atod(*Arguments[0]);
		if (!Arguments[0].IsNumeric() || !std::isfinite(Seconds) || Seconds < 0.0 || Seconds > LongestWait)
		{
			return FStepResult::Error(TEXT("seconds are a number from 0 to 86400"));
		}
		Context.Session.GetEditor().Tick(Seconds);
		return FStepResult::Done();
	}

	FStepResult Save(FScriptContext& Context, const FScriptArguments&)
	{
		const FScriptSession::FSaved Saved = Context.Session.Save(Context.Session.GetUnsaved());
		for (const FString& Name : Saved.Saved)
		{
			Context.Print(FString(TEXT("saved ")) + Name);
		}
		if (!Saved.Failed.IsEmpty())
		{
			return FStepResult::Error(FString(TEXT("not saved: ")) + FString::Join(Saved.Failed, TEXT(", ")));
		}
		return Saved.Homeless.IsEmpty() ? FStepResult::Done() : FStepResult::Error(TEXT("the open level has no file yet; give it one with: save level /Game/FOLDER/NAME"));
	}

	FStepResult Discard(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FString& Name : Context.Session.GetUnsaved())
		{
			if (UPackage* Package = FindPackage(nullptr, *Name))
			{
				Package->SetDirtyFlag(false);
				Context.Print(FString(TEXT("not to be saved: ")) + Name);
			}
		}
		return FStepResult::Done();
	}

	FStepResult Restart(FScriptContext& Context, const FScriptArguments&)
	{
		const TArray<FString> Unsaved = Context.Session.GetUnsaved();
		if (!Unsaved.IsEmpty())
		{
			return FStepResult::Error(FString::Printf(TEXT("unsaved changes would be lost: %s; save or discard them first"), *FString::Join(Unsaved, TEXT(", "))));
		}
		Context.Session.Restart();
		return FStepResult::Done();
	}

	FStepResult PrintLog(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		for (const FHostLogLine& Line : HostLog::GetLines())
		{
			if (Arguments.Num() == 0 || Line.Category == ScriptObjects::ToName(Arguments[0]))
			{
				Context.Print(Line.ToString());
			}
		}
		return FStepResult::Done();
	}

	FString GetClipboard()
	{
		FString Text;
		FPlatformApplicationMisc::ClipboardPaste(Text);
		return Text;
	}

	FStepResult PrintClipboard(FScriptContext& Context, const FScriptArguments&)
	{
		Context.Print(GetClipboard());
		return FStepResult::Done();
	}

	FStepResult PrintUnsaved(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FString& Name : Context.Session.GetUnsaved())
		{
			Context.Print(Name);
		}
		return FStepResult::Done();
	}

	FExpectation ExpectLog(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FString* Category = Arguments.FindOption(1, TEXT("category"));
		const FString* Verbosity = Arguments.FindOption(1, TEXT("verbosity"));
		const bool bFound = HostLog::GetLines().ContainsByPredicate([&](const FHostLogLine& Line) {
			return Line.Text.Contains(Arguments[0], ESearchCase::CaseSensitive) && (Category == nullptr || Line.Category == ScriptObjects::ToName(*Category)) &&
				(Verbosity == nullptr || Verbosity->Equals(::ToString(Line.Verbosity)));
		});
		return {bFound, TEXT("no line of the log is like this"), FString()};
	}

	FExpectation ExpectClipboard(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FString Text = GetClipboard();
		return {Text.Equals(Arguments[0]), FString::Printf(TEXT("it holds \"%s\""), *Text), FString()};
	}

	FExpectation ExpectUnsaved(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const TArray<FString> Unsaved = Context.Session.GetUnsaved();
		return {Arguments.Num() == 0 ? !Unsaved.IsEmpty() : Unsaved.Contains(Arguments[0]),
			Unsaved.IsEmpty() ? FString(TEXT("nothing is unsaved")) : FString(TEXT("unsaved are: ")) + FString::Join(Unsaved, TEXT(", ")), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("heading"), TEXT("TEXT"), 1, 1, TEXT("")}, &Heading},
		{{TEXT("wait"), TEXT("SECONDS"), 1, 1, TEXT("")}, &Wait},
		{{TEXT("save"), TEXT(""), 0, 0, TEXT("")}, &Save},
		{{TEXT("discard"), TEXT(""), 0, 0, TEXT("")}, &Discard},
		{{TEXT("restart"), TEXT(""), 0, 0, TEXT("")}, &Restart},
		{{TEXT("print log"), TEXT("[CATEGORY]"), 0, 1, TEXT("")}, &PrintLog},
		{{TEXT("print clipboard"), TEXT(""), 0, 0, TEXT("")}, &PrintClipboard},
		{{TEXT("print unsaved"), TEXT(""), 0, 0, TEXT("")}, &PrintUnsaved},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("log"), TEXT("PART [category CATEGORY] [verbosity VERBOSITY]"), 1, 1, TEXT("category verbosity")}, &ExpectLog},
		{{TEXT("clipboard"), TEXT("TEXT"), 1, 1, TEXT("")}, &ExpectClipboard},
		{{TEXT("unsaved"), TEXT("[PACKAGE]"), 0, 1, TEXT("")}, &ExpectUnsaved},
	};
}

FScriptTopic ScriptTopics::GetEditor()
{
	return {EditorTopic::Commands, EditorTopic::Expectations};
}
