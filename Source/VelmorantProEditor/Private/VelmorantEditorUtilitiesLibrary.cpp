// Copyright Velmorant. All Rights Reserved.

#include "VelmorantEditorUtilitiesLibrary.h"

#include "Collision/UnitVolumeCollision.h"
#include "Configurators/ConfiguratorDataAssets.h"
#include "Configurators/LevelVariantActor.h"
#include "Configurators/LevelVariantGeneration.h"
#include "EditorServices/VelmorantNotifications.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Interfaces/IPluginManager.h"
#include "UnitVolumes/UnitAssignment.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantEditorUtilities
{
	const float CopiedSeconds = 3.0f;
	const float VersionCopiedSeconds = 4.0f;

	SNotificationItem::ECompletionState ToNotificationState(EEditorNotificationCompletionState State)
	{
		switch (State)
		{
			case EEditorNotificationCompletionState::CS_Pending:
				return SNotificationItem::CS_Pending;
			case EEditorNotificationCompletionState::CS_Success:
				return SNotificationItem::CS_Success;
			case EEditorNotificationCompletionState::CS_Fail:
				return SNotificationItem::CS_Fail;
			default:
				return SNotificationItem::CS_None; // Blueprints can pass any byte
		}
	}

	FString GetPluginVersionName(const TCHAR* PluginName)
	{
		// No fallback on purpose: without the companion plugin the toolkit cannot work at all.
		return IPluginManager::Get().FindPlugin(PluginName)->GetDescriptor().VersionName;
	}
}

void UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile()
{
	UnitVolumeCollision::Check();
}

void UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile()
{
	UnitVolumeCollision::AddLines();
}

void UVelmorantEditorUtilitiesLibrary::NotifyPopup(const FString& Title, const FString& SubText, SNotificationItem::ECompletionState State, float Duration)
{
	VelmorantNotifications::Popup(Title, SubText, State, Duration);
}

void UVelmorantEditorUtilitiesLibrary::PushEditorNotification(const FString& Title, const FString& SubText, EEditorNotificationCompletionState State, float Duration)
{
	NotifyPopup(Title, SubText, VelmorantEditorUtilities::ToNotificationState(State), Duration);
}

void UVelmorantEditorUtilitiesLibrary::CopyToClipboard(const FString& Text, const FString& SubText)
{
	FPlatformApplicationMisc::ClipboardCopy(*Text);
	NotifyPopup(TEXT("Copied to Clipboard"), SubText, SNotificationItem::CS_Success, VelmorantEditorUtilities::CopiedSeconds);
}

FString UVelmorantEditorUtilitiesLibrary::GetVelmorantProVersion()
{
	return VelmorantEditorUtilities::GetPluginVersionName(TEXT("VelmorantPro"));
}

FString UVelmorantEditorUtilitiesLibrary::GetVelmorantSDKVersion()
{
	return VelmorantEditorUtilities::GetPluginVersionName(TEXT("VelmorantSDK"));
}

void UVelmorantEditorUtilitiesLibrary::CopyVersionToClipboard(const FString& Version)
{
	FPlatformApplicationMisc::ClipboardCopy(*Version);

	FNotificationInfo Info(FText::Format(LOCTEXT("VelmorantVersionCopied", "Velmorant version {0} copied to clipboard."), FText::FromString(Version)));
	Info.bUseSuccessFailIcons = true;
	Info.ExpireDuration = VelmorantEditorUtilities::VersionCopiedSeconds;
	VelmorantNotifications::Show(Info, SNotificationItem::CS_Success);
}

void UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator(const FName& ConfiguratorID)
{
	ConfiguratorDataAssets::Create(ConfiguratorID);
}

bool UVelmorantEditorUtilitiesLibrary::UpdateConfiguratorDataAssetInfo(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	return ConfiguratorDataAssets::Update(ConfiguratorData);
}

void UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	LevelVariantGeneration::CreateOrUpdate(ConfiguratorData);
}

bool UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(UVelmorantConfiguratorDataAsset* ConfiguratorData, ULevelVariantSets* LevelVariantSets)
{
	return LevelVariantGeneration::FillOut(ConfiguratorData, LevelVariantSets);
}

void UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	LevelVariantActor::PlaceInLevel(ConfiguratorData);
}

bool UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel()
{
	return UnitAssignment::AssignTargetUnits();
}

#undef LOCTEXT_NAMESPACE
