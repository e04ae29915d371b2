// Copyright Velmorant. All Rights Reserved.

#include "WriteNotices.h"

#include "Framework/Notifications/NotificationManager.h"
#include "HostProblems.h"
#include "Misc/Paths.h"
#include "Widgets/Notifications/SNotificationList.h"

#define LOCTEXT_NAMESPACE "WriteNotices"

namespace WriteNotices
{
	constexpr float SecondsToRead = 10.0f; // a path, a reason and a remedy

	/** Where notifications are refused, the programs' own report of the problem has to do. */
	void Show(const FHostProblem& Problem)
	{
		FNotificationInfo Info(FText::Format(LOCTEXT("NotWritten", "Not written: {0}"), FText::FromString(FPaths::GetCleanFilename(Problem.File))));
		Info.SubText = FText::FromString(HostProblems::ToString(Problem));
		Info.ExpireDuration = SecondsToRead;
		Info.bUseSuccessFailIcons = true;
		if (const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info))
		{
			Item->SetCompletionState(SNotificationItem::CS_Fail);
		}
	}

	void Start()
	{
		HostProblems::SetNotWrittenListener(&Show);
	}
}

#undef LOCTEXT_NAMESPACE
