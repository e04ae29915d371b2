// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProEditor.h"

#include "AssetAuthoring/AssetTypeActions.h"
#include "AssetToolsModule.h"
#include "AssetTypeCategories.h"
#include "DetailsCustomization/UI/VelmorantColorCustomization.h"
#include "DetailsCustomization/UI/VelmorantFontIconHandlerCustomization.h"
#include "Editor.h"
#include "Framework/Commands/UICommandList.h"
#include "IAssetTools.h"
#include "IPlacementModeModule.h"
#include "ISettingsModule.h"
#include "Modules/ModuleManager.h"
#include "PlaceActors/VelmorantPlaceableItems.h"
#include "PropertyEditorModule.h"
#include "Toolbar/VelmorantMenu.h"
#include "ToolMenus.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProEdCommands.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

DEFINE_LOG_CATEGORY(LogVelmorantProEditor);

void FVelmorantProEditorModule::StartupModule()
{
	SettingsSectionName = TEXT("VelmorantSettingsSection");
	DeveloperSectionName = TEXT("VelmorantDeveloperSection");
	UE_LOG(LogVelmorantProEditor, Warning, TEXT("VelmorantProEditor module has been loaded"));

	FVelmorantEditorStyle::Initialize(); // first: menus, notifications and the placement category look their brushes up by name
	FVelmorantProEdCommands::Register();
	MapSettingsCommands();
	DeferMenus();
	RegisterAssetTypes();
	RegisterDetailsCustomizations();
	RegisterDetailsSection();
	RegisterPlacementCategory();
	DeferCollisionProfileCheck(); // last: needs a loaded map
}

void FVelmorantProEditorModule::ShutdownModule()
{
	// The repeated category name is part of the text.
	UE_LOG(LogVelmorantProEditor, Warning, TEXT("LogVelmorantProEditor module has been unloaded"));

	FVelmorantEditorStyle::Shutdown();

	// Commands, menus, asset types, details customizations and section, and editor events stay registered on purpose: they live until
	// the editor process ends. The property editor is only made sure to be there.
	FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");

	if (FModuleManager::Get().IsModuleLoaded("PlacementMode"))
	{
		IPlacementModeModule::Get().UnregisterPlacementCategory(VelmorantPlaceableItems::CategoryHandle);
	}
}

void FVelmorantProEditorModule::MapSettingsCommands()
{
	const FVelmorantProEdCommands& Commands = FVelmorantProEdCommands::Get();

	// Bound raw: the toolbar keeps the list as well, but nobody runs a command once the module was shut down.
	PluginCommands = MakeShareable(new FUICommandList);
	PluginCommands->MapAction(Commands.VelmorantPro_OpenProSettings, FExecuteAction::CreateRaw(this, &FVelmorantProEditorModule::OpenProSettings), FCanExecuteAction());
	PluginCommands->MapAction(Commands.VelmorantPro_OpenProUISettings, FExecuteAction::CreateRaw(this, &FVelmorantProEditorModule::OpenProUISettings), FCanExecuteAction());
	PluginCommands->MapAction(Commands.VelmorantSDK_OpenSDKSettings, FExecuteAction::CreateRaw(this, &FVelmorantProEditorModule::OpenSDKSettings), FCanExecuteAction());
}

void FVelmorantProEditorModule::OpenProSettings()
{
	FModuleManager::LoadModuleChecked<ISettingsModule>("Settings").ShowViewer("Project", "Plugins", "VelmorantProSettings");
}

void FVelmorantProEditorModule::OpenProUISettings()
{
	FModuleManager::LoadModuleChecked<ISettingsModule>("Settings").ShowViewer("Project", "Plugins", "VelmorantProUISettings");
}

void FVelmorantProEditorModule::OpenSDKSettings()
{
	FModuleManager::LoadModuleChecked<ISettingsModule>("Settings").ShowViewer("Project", "Plugins", "VelmorantSDKSettings");
}

void FVelmorantProEditorModule::DeferMenus()
{
	// Bound raw: the module is loaded long before the menus are ready, and stays loaded until the editor closes.
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FVelmorantProEditorModule::RegisterMenus));
}

void FVelmorantProEditorModule::RegisterMenus()
{
	VelmorantMenu::AddToToolbar(PluginCommands.ToSharedRef());
}

void FVelmorantProEditorModule::RegisterAssetTypes()
{
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
	const EAssetTypeCategories::Type Category = AssetTools.RegisterAdvancedAssetCategory("VelmorantAsset", LOCTEXT("VelmorantAssets", "Velmorant Assets"));

	RegisterAssetTypeActions(AssetTools, MakeShareable(new FMapLinkerAsset_TypeAction(Category)));
	RegisterAssetTypeActions(AssetTools, MakeShareable(new FMinimapDataAsset_TypeAction(Category)));
}

void FVelmorantProEditorModule::RegisterAssetTypeActions(IAssetTools& AssetTools, const TSharedRef<IAssetTypeActions>& Actions)
{
	RegisteredAssetTypeActions.Add(Actions);
	AssetTools.RegisterAssetTypeActions(Actions);
}

void FVelmorantProEditorModule::RegisterDetailsCustomizations()
{
	FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	FVelmorantColorCustomization::Register(PropertyEditor);
	FVelmorantFontIconHandlerCustomization::Register(PropertyEditor);
	PropertyEditor.NotifyCustomizationModuleChanged();
}

void FVelmorantProEditorModule::RegisterDetailsSection()
{
	// The categories that the runtime classes put on their properties: together they make one "Velmorant" tab for every object.
	static const FName Categories[] = {
		"VelmorantLevelConfiguration",
		"VelmorantCharacter",
		"VelmorantPanoramicChar",
		"VelmorantPlayerController",
		"UnitVolumeConfig",
		"UnitVolumesManager",
		"ControllerSwitchPawn",
		"MinimapLevelController"};

	FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	const TSharedRef<FPropertySection> Section = PropertyEditor.FindOrCreateSection("Object", "Velmorant", LOCTEXT("Velmorant", "Velmorant"));
	for (const FName& Category : Categories)
	{
		Section->AddCategory(Category);
	}
}

void FVelmorantProEditorModule::RegisterPlacementCategory()
{
	IPlacementModeModule& PlacementMode = FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode");

	PlacementMode.RegisterPlacementCategory(VelmorantPlaceableItems::MakeCategory());
	for (const TSharedRef<FPlaceableItem>& Item : VelmorantPlaceableItems::MakeItems())
	{
		PlacementMode.RegisterPlaceableItem(VelmorantPlaceableItems::CategoryHandle, Item);
	}
}

void FVelmorantProEditorModule::DeferCollisionProfileCheck()
{
	// Two subscriptions on purpose: editor initialisation completes after the start-up map was requested, and the check needs
	// that map. A map loaded later only adds a handler to an event that does not fire again.
	FEditorDelegates::OnMapLoad.AddLambda([](const FString&, FCanLoadMap&) {
		FEditorDelegates::OnEditorInitialized.AddLambda([](double) {
			UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
		});
	});
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FVelmorantProEditorModule, VelmorantProEditor)
