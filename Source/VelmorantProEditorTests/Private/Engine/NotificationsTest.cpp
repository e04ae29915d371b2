// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Misc/App.h"
#include "Misc/MessageDialog.h"
#include "Support/Beliefs.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Widgets/Notifications/SNotificationList.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNotificationsRefusedTest, "Velmorant.Engine.Notifications.Refused", VelmorantTests::Flags)

bool FVelmorantNotificationsRefusedTest::RunTest(const FString&)
{
	const FVelmorantNotificationsAllowed Allowed(false);
	TestFalse(TEXT("they can be forbidden"), FSlateNotificationManager::Get().AreNotificationsAllowed());
	TestInvalid(TEXT("a notification that is refused is null"), FSlateNotificationManager::Get().AddNotification(FNotificationInfo(INVTEXT("Velmorant test"))));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNotificationStateTest, "Velmorant.Engine.Notifications.State", VelmorantTests::Flags)

bool FVelmorantNotificationStateTest::RunTest(const FString&)
{
	const FVelmorantNotificationsAllowed Allowed(true);
	FNotificationInfo Info(INVTEXT("Velmorant test"));
	Info.bFireAndForget = false;
	const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
	if (!TestValid(TEXT("a notification that is allowed is there, also unattended"), Item))
	{
		return false;
	}
	TestTrue(TEXT("without a state at first"), Item->GetCompletionState() == SNotificationItem::CS_None);
	Item->SetCompletionState(SNotificationItem::CS_Fail);
	TestTrue(TEXT("with the one that it is given"), Item->GetCompletionState() == SNotificationItem::CS_Fail);
	Item->ExpireAndFadeout();
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNotificationDefaultsTest, "Velmorant.Engine.Notifications.Defaults", VelmorantTests::Flags)

bool FVelmorantNotificationDefaultsTest::RunTest(const FString&)
{
	const FNotificationInfo Info(INVTEXT("Velmorant test"));
	VelmorantTests::RecordBelief(*this, TEXT("seconds that a notification fades in"), FString::Printf(TEXT("%.2f"), Info.FadeInDuration.Get()));
	VelmorantTests::RecordBelief(*this, TEXT("seconds that a notification fades out"), FString::Printf(TEXT("%.2f"), Info.FadeOutDuration.Get()));
	VelmorantTests::RecordBelief(*this, TEXT("seconds that a notification stays"), FString::Printf(TEXT("%.2f"), Info.ExpireDuration.Get()));
	VelmorantTests::RecordBelief(*this, TEXT("notifications fire and forget unless told otherwise"), Info.bFireAndForget);
	const bool bPlain = !Info.bUseThrobber && !Info.bUseSuccessFailIcons && !Info.bUseLargeFont && !Info.bUseCopyToClipboard;
	VelmorantTests::RecordBelief(*this, TEXT("look flags of a notification that nobody set"), bPlain ? TEXT("off") : TEXT("some are on"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNotificationTimesTest, "Velmorant.Engine.Notifications.Times", VelmorantTests::Flags)

bool FVelmorantNotificationTimesTest::RunTest(const FString&)
{
	TWeakPtr<SNotificationItem> Fading;
	TWeakPtr<SNotificationItem> Waiting;
	{
		const FVelmorantNotificationsAllowed Allowed(true);
		FNotificationInfo Info(INVTEXT("Velmorant test"));
		Info.FadeInDuration = 0.4f;
		Info.ExpireDuration = 0.4f;
		Info.FadeOutDuration = 0.1f;
		Fading = FSlateNotificationManager::Get().AddNotification(Info);
		Info.bFireAndForget = false;
		Waiting = FSlateNotificationManager::Get().AddNotification(Info);
	}
	// One after the other, fading in, staying and fading out last 0.9 seconds; 0.5 when staying begins at once.
	ADD_LATENT_AUTOMATION_COMMAND(FDelayedFunctionLatentCommand([this, Fading] { VelmorantTests::RecordBelief(*this, TEXT("fade-in and expire time run at the same time"), !Fading.IsValid()); }, 0.7f));
	ADD_LATENT_AUTOMATION_COMMAND(FDelayedFunctionLatentCommand([this, Waiting] {
		const TSharedPtr<SNotificationItem> Item = Waiting.Pin();
		if (TestValid(TEXT("one that is not forgotten stays until it is told to go"), Item))
		{
			Item->ExpireAndFadeout();
		}
	},
		0.7f));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDialogDefaultsTest, "Velmorant.Engine.Dialogs.UnattendedDefaults", VelmorantTests::Flags)

bool FVelmorantDialogDefaultsTest::RunTest(const FString&)
{
	if (!FApp::IsUnattended())
	{
		AddInfo(TEXT("Left out: somebody would be asked. Run with -unattended."));
		return true;
	}
	const auto Ask = [](EAppMsgType::Type Type) { return FMessageDialog::Open(Type, INVTEXT("Velmorant test")); };
	TestTrue(TEXT("a message is taken as read"), Ask(EAppMsgType::Ok) == EAppReturnType::Ok);
	TestTrue(TEXT("yes or no is answered with no"), Ask(EAppMsgType::YesNo) == EAppReturnType::No);
	for (const EAppMsgType::Type Type : {EAppMsgType::OkCancel, EAppMsgType::YesNoCancel, EAppMsgType::CancelRetryContinue})
	{
		TestTrue(TEXT("what can be cancelled is"), Ask(Type) == EAppReturnType::Cancel);
	}
	VelmorantTests::RecordBelief(*this, TEXT("yes or no, to all or not, is answered with no"), Ask(EAppMsgType::YesNoYesAllNoAll) == EAppReturnType::No);
	TestTrue(TEXT("a default that is given counts"), FMessageDialog::Open(EAppMsgType::YesNo, EAppReturnType::Yes, INVTEXT("Velmorant test")) == EAppReturnType::Yes);
	return true;
}

#endif
