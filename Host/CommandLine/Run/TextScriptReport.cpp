// Copyright Velmorant. All Rights Reserved.

#include "Run/TextScriptReport.h"

#include "Console.h"

namespace TextScriptReport
{
	const TCHAR* const Indent = TEXT("    ");

	void PrintHeading(const FString& Heading)
	{
		Console::Print(FString());
		Console::Print(Heading, ETextStyle::Heading);
		Console::Print(FString::ChrN(Heading.Len(), TEXT('-')), ETextStyle::Heading);
	}

	void PrintNotification(const FStepEvents::FNotification& Notification)
	{
		const bool bFailed = Notification.State == TEXT("fail");
		FString Line = FString::Printf(TEXT("%s(%s) %s"), Indent, *Notification.State, *Notification.Title);
		for (const FString& Button : Notification.Buttons)
		{
			Line += TEXT("  [") + Button + TEXT("]");
		}
		Console::Print(Line, bFailed ? ETextStyle::Warning : ETextStyle::Plain);
		TArray<FString> SubText;
		Notification.SubText.ParseIntoArrayLines(SubText);
		for (const FString& Each : SubText)
		{
			Console::Print(FString(Indent) + Indent + Each.TrimStartAndEnd());
		}
	}

	void PrintQuestion(const FStepEvents::FQuestion& Question)
	{
		FString Line = FString::Printf(TEXT("%sasked: %s -> %s%s"), Indent, *Question.Message, *Question.Choice, Question.bUnattended ? TEXT(" (nobody answered)") : TEXT(""));
		for (const FString& Field : Question.Fields)
		{
			Line += TEXT("  ") + Field;
		}
		Console::Print(Line);
	}

	void PrintEvents(const FStepEvents& Events)
	{
		for (const FString& Line : Events.Log)
		{
			Console::Print(FString(Indent) + TEXT("log: ") + Line);
		}
		for (const FString& Url : Events.Urls)
		{
			Console::Print(FString(Indent) + TEXT("web page: ") + Url);
		}
		for (const FStepEvents::FQuestion& Question : Events.Questions)
		{
			PrintQuestion(Question);
		}
		for (const FStepEvents::FNotification& Notification : Events.Notifications)
		{
			PrintNotification(Notification);
		}
		Console::PrintProblems(Events.Problems);
	}
}

void FTextScriptReport::TellStep(const FStepRecord& Record)
{
	if (!Record.Heading.IsEmpty())
	{
		TextScriptReport::PrintHeading(Record.Heading);
		return;
	}
	Console::Print(TEXT("> ") + Record.Text, ETextStyle::Step);
	for (const FString& Line : Record.Output)
	{
		Console::Print(TextScriptReport::Indent + Line);
	}
	TextScriptReport::PrintEvents(Record.Events);
	if (Record.Result.Outcome != EStepOutcome::Done)
	{
		Console::PrintError(ScriptReport::DescribeTrouble(Script, Record));
	}
}

void FTextScriptReport::TellEnd(const FRunSummary& Summary)
{
	for (const int32 Line : Summary.UnusedAnswers)
	{
		Console::PrintError(FString::Printf(TEXT("%s(%d): warning: nothing asked for this answer"), *Script, Line), ETextStyle::Warning);
	}
	for (const FString& Package : Summary.Unsaved)
	{
		Console::PrintError(FString::Printf(TEXT("%s: warning: not saved: %s"), *Script, *Package), ETextStyle::Warning);
	}
}

void FTextScriptReport::TellStopped(int32 Line, const FString& Reason)
{
	Console::PrintError(FScriptProblem{Line, Reason}.ToString(Script));
}
