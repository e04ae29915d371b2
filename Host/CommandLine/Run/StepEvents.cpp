// Copyright Velmorant. All Rights Reserved.

#include "Run/StepEvents.h"

#include "HostLog.h"
#include "HostNotifications.h"
#include "HostProcess.h"
#include "HostQuestions.h"
#include "Run/ScriptExtension.h"

namespace StepEvents
{
	const TCHAR* GetStateWord(int32 CompletionState)
	{
		switch (CompletionState)
		{
			case SNotificationItem::CS_Pending:
				return TEXT("pending");
			case SNotificationItem::CS_Success:
				return TEXT("success");
			case SNotificationItem::CS_Fail:
				return TEXT("fail");
			default:
				return TEXT("none");
		}
	}

	bool IsShown(const FHostLogLine& Line)
	{
		const auto IsShownBesides = ScriptExtension::Get().IsShown;
		return Line.Verbosity <= ELogVerbosity::Warning || (IsShownBesides != nullptr && IsShownBesides(Line));
	}

	/** What only the log tells of. */
	bool IsTrouble(const FHostLogLine& Line)
	{
		const auto IsMeant = ScriptExtension::Get().IsTrouble;
		return IsMeant != nullptr && IsMeant(Line);
	}
}

void FEventWatch::Collect()
{
	CollectNotifications();
	CollectQuestions();
	CollectUrls();
	ReportTrouble();
	CollectLog();
	CollectProblems();
	CollectNotWritten();
}

void FEventWatch::CollectNotifications()
{
	const TArray<HostNotifications::FRecord> History = HostNotifications::GetHistory();
	for (; NumNotifications < History.Num(); ++NumNotifications)
	{
		const FHostNotification& Shown = *History[NumNotifications];
		FStepEvents::FNotification& Event = Events.Notifications.AddDefaulted_GetRef();
		Event.Title = Shown.Text.ToString();
		Event.SubText = Shown.SubText.ToString();
		Event.State = StepEvents::GetStateWord(Shown.State);
		Event.Seconds = Shown.ExpireDuration;
		Event.Buttons = HostNotifications::GetVisibleButtons(Shown);
	}
}

void FEventWatch::CollectQuestions()
{
	const TArray<FAskedQuestion>& Asked = HostQuestions::GetAsked();
	for (; NumQuestions < Asked.Num(); ++NumQuestions)
	{
		const FAskedQuestion& Question = Asked[NumQuestions];
		FStepEvents::FQuestion& Event = Events.Questions.AddDefaulted_GetRef();
		Event.Kind = Question.Question.Kind.ToString();
		Event.Message = Question.Question.Message.ToString();
		Event.Choice = Question.Answer.Choice;
		Event.bUnattended = Question.Source == EHostAnswerSource::Unattended;
		for (const TPair<FString, FString>& Field : Question.Answer.Fields)
		{
			Event.Fields.Add(Field.Key + TEXT("=") + Field.Value);
		}
	}
}

void FEventWatch::CollectUrls()
{
	const TArray<FString>& Urls = HostProcess::GetOpenedUrls();
	for (; NumUrls < Urls.Num(); ++NumUrls)
	{
		Events.Urls.Add(Urls[NumUrls]);
	}
}

void FEventWatch::CollectLog()
{
	const TArray<FHostLogLine>& Lines = HostLog::GetLines();
	for (; NumLogLines < Lines.Num(); ++NumLogLines)
	{
		if (StepEvents::IsShown(Lines[NumLogLines]))
		{
			Events.Log.Add(Lines[NumLogLines].ToString());
		}
	}
}

void FEventWatch::ReportTrouble() const
{
	const TArray<FHostLogLine>& Lines = HostLog::GetLines();
	for (int32 Index = NumLogLines; Index < Lines.Num(); ++Index)
	{
		if (StepEvents::IsTrouble(Lines[Index]))
		{
			HostProblems::Report(FString(), 0, Lines[Index].Text);
		}
	}
}

void FEventWatch::CollectProblems()
{
	const TArray<FHostProblem>& Problems = HostProblems::GetAll();
	for (; NumProblems < Problems.Num(); ++NumProblems)
	{
		Events.Problems.Add(Problems[NumProblems]);
	}
}

void FEventWatch::CollectNotWritten()
{
	const TArray<FHostProblem>& NotWritten = HostProblems::GetNotWritten();
	for (; NumNotWritten < NotWritten.Num(); ++NumNotWritten)
	{
		Events.NotWritten.Add(NotWritten[NumNotWritten]);
	}
}

FStepEvents FEventWatch::Take()
{
	FStepEvents Taken = MoveTemp(Events);
	Events = FStepEvents();
	return Taken;
}

void FEventWatch::StartAnew()
{
	NumNotifications = 0;
	NumQuestions = 0;
	NumUrls = 0;
	NumLogLines = 0;
	NumProblems = 0;
	NumNotWritten = 0;
}
