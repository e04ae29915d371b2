// Copyright Velmorant. All Rights Reserved.
// Notifications: what the editor tells, and the buttons on it.

#include "HostNotifications.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptTopics.h"

namespace NotificationTopic
{
	/** The newest one of that title that still shows; null when there is none. */
	TSharedPtr<const FHostNotification> FindStanding(const FString& Title)
	{
		TSharedPtr<const FHostNotification> Found;
		for (const HostNotifications::FRecord& Notification : HostNotifications::GetStanding())
		{
			if (Notification->Text.ToString().Equals(Title))
			{
				Found = Notification;
			}
		}
		return Found;
	}

	FStepResult Press(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FString* Title = Arguments.FindOption(1, TEXT("on"));
		const TSharedPtr<const FHostNotification> Notification = Title != nullptr ? FindStanding(*Title) : nullptr;
		if (Title != nullptr && !Notification.IsValid())
		{
			return FStepResult::Error(FString::Printf(TEXT("no notification \"%s\" is there"), **Title));
		}
		const FHostInputResult Result = Notification.IsValid() ? HostNotifications::PressButton(*Notification, Arguments[0]) : HostNotifications::PressButton(Arguments[0]);
		return Result.bDone ? FStepResult::Done() : FStepResult::Error(FString::Printf(TEXT("\"%s\" cannot be pressed: %s"), *Arguments[0], *Result.Reason));
	}

	FString Describe(const FHostNotification& Notification)
	{
		FString Text = FString::Printf(TEXT("%s: %s"), StepEvents::GetStateWord(Notification.State), *Notification.Text.ToString());
		if (!Notification.SubText.IsEmpty())
		{
			Text += TEXT(" | ") + Notification.SubText.ToString().Replace(TEXT("\n"), TEXT(" "));
		}
		return Text;
	}

	FStepResult PrintNotifications(FScriptContext& Context, const FScriptArguments&)
	{
		for (const HostNotifications::FRecord& Notification : HostNotifications::GetHistory())
		{
			Context.Print(Describe(*Notification) + (Notification->IsGone() ? TEXT(" (gone)") : TEXT("")));
		}
		return FStepResult::Done();
	}

	bool Matches(const FHostNotification& Notification, const FScriptArguments& Arguments)
	{
		const FString* SubText = Arguments.FindOption(1, TEXT("subtext"));
		const FString* State = Arguments.FindOption(1, TEXT("state"));
		const FString* Button = Arguments.FindOption(1, TEXT("button"));
		return Notification.Text.ToString().Equals(Arguments[0]) &&
			(SubText == nullptr || Notification.SubText.ToString().Equals(*SubText)) &&
			(State == nullptr || State->Equals(StepEvents::GetStateWord(Notification.State))) &&
			(Button == nullptr || HostNotifications::GetVisibleButtons(Notification).Contains(*Button));
	}

	FExpectation ExpectNotification(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FString* Times = Arguments.FindOption(1, TEXT("times"));
		int32 Count = 0;
		TArray<FString> Shown;
		for (const HostNotifications::FRecord& Notification : HostNotifications::GetHistory())
		{
			Count += Matches(*Notification, Arguments) ? 1 : 0;
			Shown.Add(Describe(*Notification));
		}
		const FString Found = Shown.IsEmpty() ? FString(TEXT("there were none")) : FString(TEXT("there were: ")) + FString::Join(Shown, TEXT("; "));
		return {Times != nullptr ? FString::FromInt(Count).Equals(*Times) : Count > 0, Found, FString()};
	}

	FExpectation ExpectStanding(FScriptContext&, const FScriptArguments& Arguments)
	{
		return {FindStanding(Arguments[0]).IsValid(), TEXT("it does not show"), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("press"), TEXT("BUTTON [on TITLE]"), 1, 1, TEXT("on")}, &Press},
		{{TEXT("print notifications"), TEXT(""), 0, 0, TEXT("")}, &PrintNotifications},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("notification"), TEXT("TITLE [subtext TEXT] [state STATE] [button LABEL] [times NUMBER]"), 1, 1, TEXT("subtext state button times")}, &ExpectNotification},
		{{TEXT("standing"), TEXT("TITLE"), 1, 1, TEXT("")}, &ExpectStanding},
	};
}

FScriptTopic ScriptTopics::GetNotifications()
{
	return {NotificationTopic::Commands, NotificationTopic::Expectations};
}
