// Copyright Velmorant. All Rights Reserved.

#include "PlaceActors/VelmorantPlaceableItems.h"

#include "ActorFactories/ActorFactoryBlueprint.h"
#include "AssetRegistry/AssetData.h"
#include "MinimapLevelController.h"
#include "Textures/SlateIcon.h"
#include "UnitVolumeActor.h"
#include "VelmorantCharacters.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantLevelActors.h"
#include "VelmorantLevelVariantSetsActor.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantPlaceableItems
{
	const int32 CategorySortOrder = 35; // below the engine's own categories, above "All Classes"

	TSharedRef<FPlaceableItem> MakeNativeItem(UClass* ActorClass)
	{
		return MakeShareable(new FPlaceableItem(nullptr, FAssetData(ActorClass)));
	}

	TSharedRef<FPlaceableItem> MakeSunSkyItem()
	{
		// Built by hand: the asset registry has not been scanned while modules start.
		const FAssetData SunSky(
			TEXT("/VelmorantPro/Features/SunAndLights/SunSkyVlm"),
			TEXT("/VelmorantPro/Features/SunAndLights"),
			TEXT("SunSkyVlm"),
			FTopLevelAssetPath(TEXT("/Script/Engine"), TEXT("Blueprint")));

		return MakeShareable(new FPlaceableItem(
			*UActorFactoryBlueprint::StaticClass(),
			SunSky,
			"SunPosition.ModesThumbnail",
			"SunPosition.ModesIcon",
			TOptional<FLinearColor>(),
			TOptional<int32>(),
			LOCTEXT("SunSkyVelmorant", "Sun Sky Velmorant")));
	}
}

FPlacementCategoryInfo VelmorantPlaceableItems::MakeCategory()
{
	return FPlacementCategoryInfo(
		LOCTEXT("VelmorantActors", "Velmorant Actors"),
		FSlateIcon(FVelmorantEditorStyle::GetStyleSetName(), "Velmorant.Editor.LogoRamp"),
		CategoryHandle,
		TEXT("VelmorantActors"),
		CategorySortOrder);
}

TArray<TSharedRef<FPlaceableItem>> VelmorantPlaceableItems::MakeItems()
{
	return {
		MakeNativeItem(AUnitVolumeActor::StaticClass()),
		MakeNativeItem(AUnitVolumesManager::StaticClass()),
		MakeNativeItem(AVlmInteractiveSpot::StaticClass()),
		MakeNativeItem(ACuttingSectionScene::StaticClass()),
		MakeNativeItem(AVelmorantLevelConfiguration::StaticClass()),
		MakeNativeItem(AVelmorantWalkCharacter::StaticClass()),
		MakeNativeItem(AVelmorantOrbitalCharacter::StaticClass()),
		MakeNativeItem(AVelmorantPanoramicCharacter::StaticClass()),
		MakeNativeItem(AVelmorantLevelVariantSetsActor::StaticClass()),
		MakeNativeItem(AMinimapLevelController::StaticClass()),
		MakeNativeItem(AMinimapFloorAnchor::StaticClass()),
		MakeSunSkyItem()};
}

#undef LOCTEXT_NAMESPACE
