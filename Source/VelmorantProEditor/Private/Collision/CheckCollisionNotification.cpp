// Copyright Velmorant. All Rights Reserved.

#include "Collision/CheckCollisionNotification.h"

#include "EditorServices/VelmorantNotifications.h"
#include "Styling/ISlateStyle.h"
#include "UnrealEdMisc.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "Widgets/Notifications/SNotificationList.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace CheckCollisionNotification
{
	const float NotificationWidth = 450.0f; // Slate units; wide enough for the longest sub-text
	const float AddedSeconds = 2.0f;
}

void UCheckCollisionNotification::ShowMissingProfileNotification()
{
	AddToRoot();

	FNotificationInfo Info(LOCTEXT("MissingUnitVolumeProfile", "Velmorant: Missing UnitVolume Profile"));
	Info.SubText = LOCTEXT("MissingUnitVolumeProfile_SubText", "The UnitVolume profile was not found. This profile is required for UnitVolumes. Make sure to add it to your project to avoid issues. \n\n Do you want to add this configuration to the project?");
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("AddToProjectConfig", "Add to Project Config"), FText::GetEmpty(),
		FSimpleDelegate::CreateUObject(this, &UCheckCollisionNotification::OnAddToProjectConfig), SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("SkipUnitVolumeProfile", "Skip"), FText::GetEmpty(),
		FSimpleDelegate::CreateUObject(this, &UCheckCollisionNotification::OnDismiss), SNotificationItem::CS_Pending));
	ShowQuestion(Info);
}

void UCheckCollisionNotification::OnAddToProjectConfig()
{
	UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile();
	TakeQuestionAway();
	ShowProfilesAddedNotification();
	ShowRestartNotification();
}

void UCheckCollisionNotification::OnDismiss()
{
	if (NotificationItem.IsValid())
	{
		TakeQuestionAway();
	}
	RemoveFromRoot();
}

void UCheckCollisionNotification::OnRestartEditor()
{
	// The notification stays and the object stays rooted: the process ends.
	FUnrealEdMisc::Get().RestartEditor(false);
}

void UCheckCollisionNotification::ShowProfilesAddedNotification()
{
	FNotificationInfo Info(LOCTEXT("UnitVolumeProfilesAdded", "UnitVolume Collision Profiles Added"));
	Info.bUseSuccessFailIcons = true;
	Info.WidthOverride = CheckCollisionNotification::NotificationWidth;
	Info.ExpireDuration = CheckCollisionNotification::AddedSeconds;
	VelmorantNotifications::Show(Info, SNotificationItem::CS_Success);
}

void UCheckCollisionNotification::ShowRestartNotification()
{
	FNotificationInfo Info(LOCTEXT("RestartEditorRequired", "Restart Editor Required"));
	Info.SubText = LOCTEXT("RestartEditorRequired_SubText", "A restart is required to apply the changes properly. Save your work and restart the project. \n\n Do you want to restart the editor now?");
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("RestartEditor", "Restart Editor"), FText::GetEmpty(),
		FSimpleDelegate::CreateUObject(this, &UCheckCollisionNotification::OnRestartEditor), SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("RestartLater", "Later"), FText::GetEmpty(),
		FSimpleDelegate::CreateUObject(this, &UCheckCollisionNotification::OnDismiss), SNotificationItem::CS_Pending));
	ShowQuestion(Info);
}

void UCheckCollisionNotification::ShowQuestion(FNotificationInfo& Info)
{
	Info.Image = FVelmorantEditorStyle::Get().GetBrush("Velmorant.Editor.LogoGrey");
	Info.FadeOutDuration = 0.0f;
	Info.bUseThrobber = false;
	Info.WidthOverride = CheckCollisionNotification::NotificationWidth;
	Info.bFireAndForget = false;

	NotificationItem = VelmorantNotifications::Show(Info, SNotificationItem::CS_Pending); // the buttons show only while pending
	if (!NotificationItem.IsValid())
	{
		RemoveFromRoot(); // nobody can answer
	}
}

void UCheckCollisionNotification::TakeQuestionAway()
{
	// Out of the pending state first: a notification that fades can still be clicked, and no answer counts twice.
	NotificationItem->SetCompletionState(SNotificationItem::CS_None);
	NotificationItem->ExpireAndFadeout();
}

#undef LOCTEXT_NAMESPACE
