// Copyright Velmorant. All Rights Reserved.

#include "Run/JsonScriptReport.h"

#include "Console.h"
#include "JsonText.h"

namespace JsonScriptReport
{
	const char* GetOutcomeWord(EStepOutcome Outcome)
	{
		switch (Outcome)
		{
			case EStepOutcome::Done: return "done";
			case EStepOutcome::Failed: return "failed";
			default: return "error";
		}
	}

	FJson Make(const FStepEvents::FNotification& Notification)
	{
		return {{"title", JsonText::Make(Notification.Title)}, {"subText", JsonText::Make(Notification.SubText)}, {"state", JsonText::Make(Notification.State)},
			{"seconds", Notification.Seconds}, {"buttons", JsonText::Make(Notification.Buttons)}};
	}

	FJson Make(const FStepEvents::FQuestion& Question)
	{
		return {{"kind", JsonText::Make(Question.Kind)}, {"message", JsonText::Make(Question.Message)}, {"choice", JsonText::Make(Question.Choice)},
			{"unattended", Question.bUnattended}, {"fields", JsonText::Make(Question.Fields)}};
	}

	template<typename EventType>
	FJson MakeArray(const TArray<EventType>& Events)
	{
		FJson Array = FJson::array();
		for (const EventType& Event : Events)
		{
			Array.push_back(Make(Event));
		}
		return Array;
	}
}

void FJsonScriptReport::TellStep(const FStepRecord& Record)
{
	FJson Json = {{"line", Record.Line}, {"command", JsonText::Make(Record.Text)}, {"outcome", JsonScriptReport::GetOutcomeWord(Record.Result.Outcome)}};
	if (!Record.Result.Message.IsEmpty())
	{
		Json["message"] = JsonText::Make(Record.Result.Message);
	}
	Json["output"] = JsonText::Make(Record.Output);
	Json["notifications"] = JsonScriptReport::MakeArray(Record.Events.Notifications);
	Json["questions"] = JsonScriptReport::MakeArray(Record.Events.Questions);
	Json["log"] = JsonText::Make(Record.Events.Log);
	Json["urls"] = JsonText::Make(Record.Events.Urls);
	Json["problems"] = JsonText::Make(Record.Events.Problems);
	Console::PrintExact(JsonText::Print(Json, -1));
	Console::PrintProblems(Record.Events.Problems);
	if (Record.Result.Outcome != EStepOutcome::Done)
	{
		Console::PrintError(ScriptReport::DescribeTrouble(Script, Record));
	}
}

void FJsonScriptReport::TellEnd(const FRunSummary& Summary)
{
	FJson UnusedAnswers = FJson::array();
	for (const int32 Line : Summary.UnusedAnswers)
	{
		UnusedAnswers.push_back(Line);
	}
	const FJson Json = {{"status", static_cast<int>(Summary.Status)}, {"steps", Summary.NumSteps}, {"writtenFiles", JsonText::Make(Summary.WrittenFiles)},
		{"unsaved", JsonText::Make(Summary.Unsaved)}, {"unusedAnswers", UnusedAnswers}};
	Console::PrintExact(JsonText::Print(Json, -1));
}

void FJsonScriptReport::TellStopped(int32 Line, const FString& Reason)
{
	Console::PrintError(FScriptProblem{Line, Reason}.ToString(Script));
}
