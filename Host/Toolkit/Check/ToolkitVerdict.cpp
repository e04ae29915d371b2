// Copyright Velmorant. All Rights Reserved.

#include "Check/ToolkitVerdict.h"

#include "HostLog.h"
#include "HostNotifications.h"
#include "UObject/UObjectHash.h"

namespace ToolkitVerdict
{
	// Known by what no translation changes: a class, and what the log is given as it is.
	const TCHAR* const DialogueClass = TEXT("/Script/VelmorantProEditor.CheckCollisionNotification");
	const TCHAR* const Category = TEXT("LogVelmorantProEditor");
	const TCHAR* const SoundLine = TEXT("Checked UnitVolume DefaultChannelResponses and profile exist.");
	const TCHAR* const NotShown = TEXT("Notification not shown: "); // title and sub-text follow, each behind ": "

	template<typename PredicateType>
	bool Logged(PredicateType IsMeant)
	{
		const FName CategoryName(Category);
		return HostLog::GetLines().ContainsByPredicate([CategoryName, IsMeant](const FHostLogLine& Line) {
			return Line.Category == CategoryName && IsMeant(Line);
		});
	}

	bool SaysSound()
	{
		return Logged([](const FHostLogLine& Line) { return Line.Text.Equals(SoundLine); });
	}

	/** The dialogue is rooted for as long as its question stands. */
	bool Asks()
	{
		TArray<UObject*> Dialogues;
		if (const UClass* Class = FindObject<UClass>(nullptr, DialogueClass))
		{
			GetObjectsOfClass(Class, Dialogues);
		}
		return Dialogues.ContainsByPredicate([](const UObject* Dialogue) { return Dialogue->IsRooted(); });
	}

	bool CouldNotAsk()
	{
		return Logged([](const FHostLogLine& Line) { return Line.Verbosity == ELogVerbosity::Warning && Line.Text.StartsWith(NotShown, ESearchCase::CaseSensitive); });
	}

	EToolkitVerdict Read()
	{
		if (SaysSound())
		{
			return Asks() ? EToolkitVerdict::None : EToolkitVerdict::Sound;
		}
		return Asks() || CouldNotAsk() ? EToolkitVerdict::Missing : EToolkitVerdict::None;
	}

	bool Accept()
	{
		TArray<HostNotifications::FRecord> Questions;
		if (Asks())
		{
			Questions = HostNotifications::GetStanding().FilterByPredicate([](const HostNotifications::FRecord& Each) { return !HostNotifications::GetVisibleButtons(*Each).IsEmpty(); });
		}
		return Questions.Num() == 1 && HostNotifications::PressButton(*Questions[0], HostNotifications::GetVisibleButtons(*Questions[0])[0]).bDone;
	}

	TArray<FString> GetMessages()
	{
		TArray<FString> Messages;
		const FName CategoryName(Category);
		for (const FHostLogLine& Line : HostLog::GetLines())
		{
			if (Line.Category == CategoryName)
			{
				Messages.Add(Line.ToString());
			}
		}
		for (const HostNotifications::FRecord& Notification : HostNotifications::GetHistory())
		{
			Messages.Add(FString(TEXT("Notification: ")) + Notification->Text.ToString());
		}
		return Messages;
	}
}
