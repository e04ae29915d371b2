// Copyright Velmorant. All Rights Reserved.

#include "Framework/Notifications/NotificationManager.h"
#include "HostNotifications.h"
#include "HostSlate.h"
#include "HostSnapshot.h"
#include "UiTestEditor.h"

class Notification : public FUiTestEditor
{
protected:
	static FNotificationInfo MakeInfo(float ExpireSeconds, float FadeOutSeconds)
	{
		FNotificationInfo Info(FText::FromString(TEXT("Title")));
		Info.ExpireDuration = ExpireSeconds;
		Info.FadeOutDuration = FadeOutSeconds;
		return Info;
	}

	static TSharedRef<SNotificationItem> Show(const FNotificationInfo& Info)
	{
		return FSlateNotificationManager::Get().AddNotification(Info).ToSharedRef();
	}

	static const FHostNotification& Newest() { return *HostNotifications::GetHistory().Last(); }

	/** "standing", "fading" or "gone". */
	static std::string Phase(const FHostNotification& Notification)
	{
		HostNotifications::GetStanding(); // brings the records up to date
		if (Notification.IsGone())
		{
			return "gone";
		}
		return Notification.FadeOutAt.IsSet() ? "fading" : "standing";
	}
};

TEST_F(Notification, GoesByItsDurations)
{
	struct FCase
	{
		const char* Behaviour;
		float Expire;
		double Wait;
		const char* Phase;
	};
	const FCase Cases[] = {
		{"stands until it expires", 3.0f, 2.9, "standing"},
		{"fades when it has expired", 3.0f, 3.1, "fading"},
		{"is gone after expiring and fading", 3.0f, 5.1, "gone"},
		{"a duration of zero expires at once", 0.0f, 0.0, "fading"},
		{"one long step passes all phases", 1.0f, 1000.0, "gone"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Restart();
		Show(MakeInfo(Case.Expire, 2.0f));
		Wait(Case.Wait);
		EXPECT_EQ(Phase(Newest()), Case.Phase);
	}
}

TEST_F(Notification, KeepsTheExactTimesThoughTheClockTakesLongSteps)
{
	Wait(10.0);
	Show(MakeInfo(3.0f, 2.0f));
	Wait(100.0);
	EXPECT_DOUBLE_EQ(Newest().ShownAt, 10.0);
	EXPECT_DOUBLE_EQ(Newest().FadeOutAt.Get(0.0), 13.0);
	EXPECT_DOUBLE_EQ(Newest().GoneAt.Get(0.0), 15.0);
}

TEST_F(Notification, StaysUntilToldToGoUnlessItIsFireAndForget)
{
	FNotificationInfo Info = MakeInfo(1.0f, 1.0f);
	Info.bFireAndForget = false;
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Wait(1000.0);
	EXPECT_EQ(Phase(Newest()), "standing");

	Item->ExpireAndFadeout();
	Wait(0.5);
	EXPECT_EQ(Phase(Newest()), "standing");
	Wait(1.0);
	EXPECT_EQ(Phase(Newest()), "fading");
	Wait(1.0);
	EXPECT_EQ(Phase(Newest()), "gone");
}

TEST_F(Notification, ExpiringStartsAnewEvenWhileItFades)
{
	const TSharedRef<SNotificationItem> Item = Show(MakeInfo(1.0f, 2.0f));
	Wait(2.0);
	EXPECT_EQ(Phase(Newest()), "fading");
	Item->ExpireAndFadeout();
	EXPECT_EQ(Phase(Newest()), "standing");
	Wait(0.9);
	EXPECT_EQ(Phase(Newest()), "standing");
	Wait(0.2);
	EXPECT_EQ(Phase(Newest()), "fading");
	Wait(100.0);
	Item->ExpireAndFadeout();
	EXPECT_EQ(Phase(Newest()), "gone") << "what has gone does not come back";
}

TEST_F(Notification, ShowsAButtonOnlyInItsState)
{
	struct FCase
	{
		SNotificationItem::ECompletionState State;
		TArray<FString> Visible;
	};
	const FCase Cases[] = {
		{SNotificationItem::CS_None, {}},
		{SNotificationItem::CS_Pending, {TEXT("Fix"), TEXT("Skip")}},
		{SNotificationItem::CS_Success, {TEXT("Restart")}},
		{SNotificationItem::CS_Fail, {}},
	};
	FNotificationInfo Info = MakeInfo(60.0f, 1.0f);
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Fix")), FText::GetEmpty(), FSimpleDelegate()));
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Skip")), FText::GetEmpty(), FSimpleDelegate(), SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Restart")), FText::GetEmpty(), FSimpleDelegate(), SNotificationItem::CS_Success));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	EXPECT_TRUE(HostNotifications::GetVisibleButtons(Newest()).IsEmpty()) << "a new notification is in no state";
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(static_cast<int>(Case.State));
		Item->SetCompletionState(Case.State);
		EXPECT_EQ(HostNotifications::GetVisibleButtons(Newest()), Case.Visible);
	}
	EXPECT_EQ(Newest().States.Num(), 4);
}

TEST_F(Notification, PressesOnlyWhatAPersonCouldPress)
{
	int32 NumPressed = 0;
	const FSimpleDelegate Count = FSimpleDelegate::CreateLambda([&NumPressed] { ++NumPressed; });
	FNotificationInfo Info = MakeInfo(5.0f, 1.0f);
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Go")), FText::GetEmpty(), Count, SNotificationItem::CS_Pending));
	const TSharedRef<SNotificationItem> Item = Show(Info);

	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Stop"))), "is on no notification that shows");
	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Go"))), "does not show in the notification's present state");
	EXPECT_EQ(NumPressed, 0);

	Item->SetCompletionState(SNotificationItem::CS_Pending);
	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Go"))), "");
	EXPECT_EQ(NumPressed, 1);

	Wait(5.5);
	EXPECT_EQ(Phase(Newest()), "fading");
	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Go"))), "") << "what fades can still be clicked";
	Item->SetCompletionState(SNotificationItem::CS_None);
	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Go"))), "does not show in the notification's present state");
	Item->SetCompletionState(SNotificationItem::CS_Pending);
	Wait(2.0);
	EXPECT_EQ(Refusal(HostNotifications::PressButton(TEXT("Go"))), "is on no notification that shows");
	EXPECT_EQ(NumPressed, 2);
	EXPECT_EQ(Newest().PressedButtons, (TArray<FString>{TEXT("Go"), TEXT("Go")}));
}

TEST_F(Notification, PressesTheNewestOfTwoEqualButtons)
{
	TArray<FString> Pressed;
	for (const TCHAR* Which : {TEXT("first"), TEXT("second")})
	{
		FNotificationInfo Info = MakeInfo(60.0f, 1.0f);
		Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Go")), FText::GetEmpty(),
			FSimpleDelegate::CreateLambda([&Pressed, Which] { Pressed.Add(Which); }), SNotificationItem::CS_None));
		Show(Info);
	}
	HostNotifications::PressButton(TEXT("Go"));
	EXPECT_EQ(Pressed, TArray<FString>{TEXT("second")});
}

TEST_F(Notification, AButtonMayTakeItsOwnNotificationAway)
{
	FNotificationInfo Info = MakeInfo(0.0f, 0.0f);
	Info.bFireAndForget = false;
	TSharedPtr<SNotificationItem> Item;
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Close")), FText::GetEmpty(), FSimpleDelegate::CreateLambda([&Item] {
		Item->ExpireAndFadeout();
		HostNotifications::GetStanding();
		Item.Reset();
	}),
		SNotificationItem::CS_None));
	Item = Show(Info);
	EXPECT_TRUE(HostNotifications::PressButton(TEXT("Close")).bDone);
	EXPECT_EQ(Phase(Newest()), "gone");
}

TEST_F(Notification, IsShownOnlyWhereItIsAllowedAndThereIsAUserInterface)
{
	FSlateNotificationManager& Manager = FSlateNotificationManager::Get();
	Show(MakeInfo(60.0f, 1.0f));
	Manager.SetAllowNotifications(false);
	EXPECT_FALSE(Manager.AddNotification(MakeInfo(1.0f, 1.0f)).IsValid());
	EXPECT_EQ(HostNotifications::GetStanding().Num(), 1) << "what stands, stays";

	Manager.SetAllowNotifications(true);
	Show(MakeInfo(60.0f, 1.0f));
	HostSlate::Stop();
	EXPECT_FALSE(Manager.AddNotification(MakeInfo(1.0f, 1.0f)).IsValid());
	EXPECT_EQ(HostNotifications::GetHistory().Num(), 2);
}

TEST_F(Notification, HistoryBelongsToOneEditor)
{
	Show(MakeInfo(60.0f, 1.0f));
	Restart();
	EXPECT_TRUE(HostNotifications::GetHistory().IsEmpty());
	Show(MakeInfo(60.0f, 1.0f));
	EXPECT_EQ(Newest().Id, 1);
}

TEST_F(Notification, ReadsAsItLooks)
{
	FNotificationInfo Info = MakeInfo(60.0f, 1.0f);
	Info.SubText = FText::FromString(TEXT("Sub"));
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Go")), FText::FromString(TEXT("Goes")), FSimpleDelegate(), SNotificationItem::CS_Pending));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Item->SetCompletionState(SNotificationItem::CS_Pending);
	EXPECT_EQ(Utf8(HostSnapshot::Take(Item)),
		"notification (pending)\n"
		"  vertical\n"
		"    text \"Title\"\n"
		"    text \"Sub\"\n"
		"    button (hidden)\n"
		"    horizontal\n"
		"      button [Go] (tip: Goes)\n");
}
