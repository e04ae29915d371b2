// Copyright Velmorant. All Rights Reserved.

#include "Check/ToolkitVerdict.h"

#include "HostLog.h"
#include "HostNotifications.h"

namespace ToolkitVerdict
{
	namespace
	{
		const TCHAR* const Category = TEXT("LogVelmorantProEditor");
		const TCHAR* const SoundLine = TEXT("Checked UnitVolume DefaultChannelResponses and profile exist.");
		const TCHAR* const MissingTitle = TEXT("Velmorant: Missing UnitVolume Profile");
		const TCHAR* const NotShown = TEXT("Notification not shown: "); // title and sub-text follow, each behind ": "

		template<typename PredicateType>
		bool Logged(PredicateType IsMeant)
		{
			const FName CategoryName(Category);
			return HostLog::GetLines().ContainsByPredicate([CategoryName, IsMeant](const FHostLogLine& Line) {
				return Line.Category == CategoryName && IsMeant(Line.Text);
			});
		}

		bool SaysSound()
		{
			return Logged([](const FString& Text) { return Text.Equals(SoundLine); });
		}

		/** On the screen, or in the log where notifications are refused. */
		bool AsksAboutMissing()
		{
			const FString Refused = FString(NotShown) + MissingTitle + TEXT(": ");
			if (Logged([&Refused](const FString& Text) { return Text.StartsWith(Refused, ESearchCase::CaseSensitive); }))
			{
				return true;
			}
			return HostNotifications::GetStanding().ContainsByPredicate([](const HostNotifications::FRecord& Notification) {
				return Notification->Text.ToString().Equals(MissingTitle);
			});
		}
	}

	EToolkitVerdict Read()
	{
		const bool bSound = SaysSound();
		const bool bMissing = AsksAboutMissing();
		if (bSound == bMissing)
		{
			return EToolkitVerdict::None;
		}
		return bSound ? EToolkitVerdict::Sound : EToolkitVerdict::Missing;
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
