// Copyright Velmorant. All Rights Reserved.

#include "Toolbar/VelmorantToolLaunchers.h"

#include "CoreMinimal.h"
#include "Editor.h"
#include "EditorAssetLibrary.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidget.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "HAL/PlatformProcess.h"

namespace VelmorantToolLaunchers
{
	// The vendor's web pages. This is the one place to set them.
	const TCHAR* const DocumentationPage = TEXT("https://docs.velmorant.example/unreal");
	const TCHAR* const SupportPage = TEXT("https://support.velmorant.example/tickets/new");

	const TCHAR* const UnitVolumeToolsAsset = TEXT("/VelmorantPro/EditorHelpers/ToolsWidget/UnitVolumeTools/VelmorantEditorTool_StaticMeshToUnitVolume.VelmorantEditorTool_StaticMeshToUnitVolume");
	const TCHAR* const DeveloperPanelAsset = TEXT("/VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel.VelmorantDeveloperPanel");

	void LaunchEditorWidget(const TCHAR* AssetPath)
	{
		UEditorUtilitySubsystem* Subsystem = GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>();
		if (!Subsystem)
		{
			UE_LOG(LogTemp, Error, TEXT("Failed to get Editor Utility Subsystem."));
			return;
		}

		UEditorUtilityWidgetBlueprint* Blueprint = Cast<UEditorUtilityWidgetBlueprint>(UEditorAssetLibrary::LoadAsset(AssetPath));
		if (!Blueprint)
		{
			UE_LOG(LogTemp, Error, TEXT("Failed to load widget blueprint."));
			return;
		}

		if (!Subsystem->SpawnAndRegisterTab(Blueprint))
		{
			UE_LOG(LogTemp, Error, TEXT("Failed to spawn and register widget tab."));
			return;
		}
		UE_LOG(LogTemp, Log, TEXT("Editor widget launched successfully."));
	}
}

void VelmorantToolLaunchers::OpenUnitVolumeTools()
{
	LaunchEditorWidget(UnitVolumeToolsAsset);
}

void VelmorantToolLaunchers::OpenDeveloperPanel()
{
	LaunchEditorWidget(DeveloperPanelAsset);
}

void VelmorantToolLaunchers::OpenDocumentationPage()
{
	FPlatformProcess::LaunchURL(DocumentationPage, nullptr, nullptr);
}

void VelmorantToolLaunchers::OpenSupportPage()
{
	FPlatformProcess::LaunchURL(SupportPage, nullptr, nullptr);
}
