// Copyright Velmorant. All Rights Reserved.

#include "Framework/Notifications/NotificationManager.h"

#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"
#include "HostClock.h"
#include "HostNotifications.h"
#include "HostState.h"
#include "Notifications/NotificationItem.h"

namespace NotificationManager
{
	/** The notifications of one editor. */
	struct FState
	{
		TArray<TSharedRef<FHostNotification>> History;
		TArray<TSharedRef<SNotificationItemWidget>> Standing; // oldest first
		TArray<TUniquePtr<FNotificationInfo>> Queued;
		bool bTicking = false;
	};

	FState& GetState()
	{
		static THostState<FState> State;
		return State.Get();
	}

	/** Items whose time is over are dropped; whoever still holds one can go on calling it. */
	void UpdateStanding()
	{
		FState& State = GetState();
		for (const TSharedRef<SNotificationItemWidget>& Item : State.Standing)
		{
			Item->Update();
		}
		State.Standing.RemoveAll([](const TSharedRef<SNotificationItemWidget>& Item) { return Item->GetRecord()->IsGone(); });
	}

	bool Tick(float)
	{
		FState& State = GetState();
		TArray<TUniquePtr<FNotificationInfo>> Queued = MoveTemp(State.Queued);
		State.Queued.Empty();
		for (const TUniquePtr<FNotificationInfo>& Info : Queued)
		{
			FSlateNotificationManager::Get().AddNotification(*Info);
		}
		UpdateStanding();
		State.bTicking = State.Standing.Num() > 0 || State.Queued.Num() > 0;
		return State.bTicking;
	}

	void EnsureTicking()
	{
		FState& State = GetState();
		if (!State.bTicking)
		{
			State.bTicking = true;
			FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateStatic(&Tick), 0.0f);
		}
	}

	TSharedPtr<SNotificationItemWidget> FindStanding(const FHostNotification& Notification)
	{
		UpdateStanding();
		for (const TSharedRef<SNotificationItemWidget>& Item : GetState().Standing)
		{
			if (&Item->GetRecord().Get() == &Notification)
			{
				return Item;
			}
		}
		return nullptr;
	}
}

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static THostState<FSlateNotificationManager> Manager;
	return Manager.Get();
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	if (!AreNotificationsAllowed() || !FSlateApplication::IsInitialized())
	{
		return nullptr;
	}
	NotificationManager::FState& State = NotificationManager::GetState();
	const TSharedRef<FHostNotification> Record = MakeShared<FHostNotification>();
	Record->Id = State.History.Num() + 1;
	State.History.Add(Record);

	const TSharedRef<SNotificationItemWidget> Item = SNew(SNotificationItemWidget, Info, Record);
	State.Standing.Add(Item);
	if (Info.bFireAndForget)
	{
		Item->ExpireAndFadeout();
	}
	NotificationManager::EnsureTicking();
	return Item;
}

void FSlateNotificationManager::SetAllowNotifications(const bool bShouldAllow)
{
	bAllowNotifications = bShouldAllow;
}

bool FSlateNotificationManager::AreNotificationsAllowed() const
{
	return bAllowNotifications;
}

TArray<HostNotifications::FRecord> HostNotifications::GetHistory()
{
	NotificationManager::UpdateStanding();
	TArray<FRecord> Result;
	for (const TSharedRef<FHostNotification>& Record : NotificationManager::GetState().History)
	{
		Result.Add(Record);
	}
	return Result;
}

TArray<HostNotifications::FRecord> HostNotifications::GetStanding()
{
	NotificationManager::UpdateStanding();
	TArray<FRecord> Result;
	for (const TSharedRef<SNotificationItemWidget>& Item : NotificationManager::GetState().Standing)
	{
		Result.Add(Item->GetRecord());
	}
	return Result;
}

TArray<FString> HostNotifications::GetVisibleButtons(const FHostNotification& Notification)
{
	const TSharedPtr<SNotificationItemWidget> Item = NotificationManager::FindStanding(Notification);
	return Item.IsValid() ? Item->GetVisibleButtons() : TArray<FString>();
}

FHostInputResult HostNotifications::PressButton(const FHostNotification& Notification, const FString& Label)
{
	const TSharedPtr<SNotificationItemWidget> Item = NotificationManager::FindStanding(Notification);
	return Item.IsValid() ? Item->PressButton(Label) : FHostInputResult::Refused(TEXT("is on a notification that has gone"));
}

FHostInputResult HostNotifications::PressButton(const FString& Label)
{
	NotificationManager::UpdateStanding();
	const TArray<TSharedRef<SNotificationItemWidget>> Standing = NotificationManager::GetState().Standing;
	FHostInputResult Result = FHostInputResult::Refused(TEXT("is on no notification that shows"));
	for (int32 Index = Standing.Num() - 1; Index >= 0 && !Result.bDone; --Index)
	{
		const bool bHasButton = Standing[Index]->GetRecord()->Buttons.ContainsByPredicate(
			[&Label](const FHostNotificationButton& Button) { return Button.Label.ToString().Equals(Label); });
		if (bHasButton)
		{
			Result = Standing[Index]->PressButton(Label);
		}
	}
	return Result;
}

void HostNotifications::DropStanding()
{
	NotificationManager::FState& State = NotificationManager::GetState();
	const double Now = HostClock::Now();
	for (const TSharedRef<SNotificationItemWidget>& Item : State.Standing)
	{
		Item->Update();
		if (!Item->GetRecord()->IsGone())
		{
			Item->GetRecord()->GoneAt = Now;
		}
	}
	State.Standing.Empty();
	State.Queued.Empty();
}
