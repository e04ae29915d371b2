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
	TestTrue(TEXT("a message is taken as read"), FMessageDialog::Open(EAppMsgType::Ok, INVTEXT("Velmorant test")) == EAppReturnType::Ok);
	TestTrue(TEXT("yes or no is answered with no"), FMessageDialog::Open(EAppMsgType::YesNo, INVTEXT("Velmorant test")) == EAppReturnType::No);
	TestTrue(TEXT("what can be cancelled is"), FMessageDialog::Open(EAppMsgType::OkCancel, INVTEXT("Velmorant test")) == EAppReturnType::Cancel);
	TestTrue(TEXT("a default that is given counts"), FMessageDialog::Open(EAppMsgType::YesNo, EAppReturnType::Yes, INVTEXT("Velmorant test")) == EAppReturnType::Yes);
	return true;
}

#endif
