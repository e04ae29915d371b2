// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FUICommandList;
class IAssetTools;
class IAssetTypeActions;

DECLARE_LOG_CATEGORY_EXTERN(LogVelmorantProEditor, Log, All);

/**
 * Joins the toolkit's editor tools to the editor: style, commands, toolbar menu, asset types, details sections, placement category and
 * the deferred check of the project's collision set-up. Holds no logic of its own; game thread only.
 */
class FVelmorantProEditorModule : public IModuleInterface
{
public:
	//~ Begin IModuleInterface
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
	//~ End IModuleInterface

	/** Adds the toolbar menu; called once the editor's menus are ready. */
	void RegisterMenus();

private:
	void MapSettingsCommands();
	void OpenProSettings();
	void OpenProUISettings();
	void OpenSDKSettings();
	void DeferMenus();
	void RegisterAssetTypes();
	void RegisterAssetTypeActions(IAssetTools& AssetTools, const TSharedRef<IAssetTypeActions>& Actions);
	void RegisterDetailsCustomizations();
	void RegisterDetailsSection();
	void RegisterPlacementCategory();
	void DeferCollisionProfileCheck();

	FName SettingsSectionName;
	FName DeveloperSectionName;

	/** The three settings commands; the toolbar menu takes them from here. */
	TSharedPtr<FUICommandList> PluginCommands;

	/** Stay registered until the editor process ends. */
	TArray<TSharedPtr<IAssetTypeActions>> RegisteredAssetTypeActions;
};
