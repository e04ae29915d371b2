// Copyright Velmorant. All Rights Reserved.

// The context menu of configurator data assets in the content browser. Registers itself when the module loads, apart from the
// module's start-up sequence.

#include "ContentBrowserMenuContexts.h"
#include "IContentBrowserSingleton.h"
#include "Misc/DelayedAutoRegister.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#define LOCTEXT_NAMESPACE "UConfiguratorDataAsset_AssetDefinition"

namespace ConfiguratorDataAssetMenu
{
	using FOperation = void (*)(UVelmorantConfiguratorDataAsset*);

	void UpdateInfo(UVelmorantConfiguratorDataAsset* ConfiguratorData)
	{
		UVelmorantEditorUtilitiesLibrary::UpdateConfiguratorDataAssetInfo(ConfiguratorData); // tells its outcome itself
	}

	/** Runs the operation on each selected configurator data asset, in selection order, then shows them in the content browser. */
	void RunOnSelection(const FToolMenuContext& MenuContext, FOperation Operation)
	{
		const UContentBrowserAssetContextMenuContext* Context = UContentBrowserAssetContextMenuContext::FindContextWithAssets(MenuContext);
		if (!Context)
		{
			return;
		}

		TArray<UObject*> Assets;
		for (UVelmorantConfiguratorDataAsset* ConfiguratorData : Context->LoadSelectedObjects<UVelmorantConfiguratorDataAsset>())
		{
			Operation(ConfiguratorData);
			Assets.Add(ConfiguratorData);
		}
		IContentBrowserSingleton::Get().SyncBrowserToAssets(Assets, false, true);
	}

	void AddEntry(FToolMenuSection& Section, const FName Name, const FText& Label, const FText& ToolTip, FOperation Operation)
	{
		FToolUIAction Action;
		Action.ExecuteAction = FToolMenuExecuteAction::CreateStatic(&RunOnSelection, Operation);
		Section.AddMenuEntry(Name, Label, ToolTip, FSlateIcon(FVelmorantEditorStyle::GetStyleSetName(), "Velmorant.Editor.LogoGrey"), Action);
	}

	void AddEntries(FToolMenuSection& Section)
	{
		AddEntry(Section, "ConfiguratorDataAsset_CreateLevelVariantSet",
			LOCTEXT("ConfiguratorDataAsset_CreateLevelVariantSet", "Create LevelVariantSet"),
			LOCTEXT("ConfiguratorDataAsset_CreateLevelVariantSetTooltip", "Create a LevelVariantSet with data configurator in the same folder"),
			&UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator);
		AddEntry(Section, "ConfiguratorDataAsset_UpdateLevelVariantSetData",
			LOCTEXT("ConfiguratorDataAsset_UpdateLevelVariantSetData", "Update LevelVariantSet Data"),
			LOCTEXT("ConfiguratorDataAsset_UpdateLevelVariantSetDataTooltip", "Update Configurator Data from lastest updated request data"),
			&UpdateInfo);
		AddEntry(Section, "ConfiguratorDataAsset_CreateLevelVariantActor",
			LOCTEXT("ConfiguratorDataAsset_CreateLevelVariantActor", "Place LevelVariantActor into Level"),
			LOCTEXT("ConfiguratorDataAsset_CreateLevelVariantActorTooltip", "Place a LevelVariantActor in current level with the data of configurator"),
			&UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel);
	}

	void ExtendMenu()
	{
		FToolMenuOwnerScoped OwnerScoped(UE_MODULE_NAME);
		UToolMenu* Menu = UE::ContentBrowser::ExtendToolMenu_AssetContextMenu(UVelmorantConfiguratorDataAsset::StaticClass());
		Menu->FindOrAddSection("GetAssetActions").AddDynamicEntry(NAME_None, FNewToolMenuSectionDelegate::CreateStatic(&AddEntries));
	}

	static FDelayedAutoRegisterHelper DelayedAutoRegister(EDelayedRegisterRunPhase::EndOfEngineInit, [] {
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateStatic(&ExtendMenu));
	});
}

#undef LOCTEXT_NAMESPACE
