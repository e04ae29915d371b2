// Copyright Velmorant. All Rights Reserved.

#include "ActorFactories/ActorFactory.h"
#include "CoreMinimal.h"
#include "IPlacementModeModule.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModulePlacementTest, "Velmorant.Module.Placement", VelmorantTests::Flags)

bool FVelmorantModulePlacementTest::RunTest(const FString&)
{
	const FPlacementCategoryInfo* Category = IPlacementModeModule::Get().GetRegisteredPlacementCategory("VelmorantActors");
	if (!TestNotNull(TEXT("the category is registered"), Category))
	{
		return false;
	}
	TestEqualSensitive(TEXT("its name"), *Category->DisplayName.ToString(), TEXT("Velmorant Actors"));
	TestEqual(TEXT("its place"), Category->SortOrder, 35);
	TestTrue(TEXT("its icon"), Category->DisplayIcon.GetStyleSetName() == FName(TEXT("VelmorantEditorStyle")) && Category->DisplayIcon.GetStyleName() == FName(TEXT("Velmorant.Editor.LogoRamp")));

	const TArray<FString> Expected = {
		TEXT("UnitVolumeActor"), TEXT("UnitVolumesManager"), TEXT("VlmInteractiveSpot"), TEXT("CuttingSectionScene"), TEXT("VelmorantLevelConfiguration"),
		TEXT("VelmorantWalkCharacter"), TEXT("VelmorantOrbitalCharacter"), TEXT("VelmorantPanoramicCharacter"), TEXT("VelmorantLevelVariantSetsActor"),
		TEXT("MinimapLevelController"), TEXT("MinimapFloorAnchor"), TEXT("SunSkyVlm")};
	TArray<TSharedPtr<FPlaceableItem>> Items;
	IPlacementModeModule::Get().GetItemsForCategory("VelmorantActors", Items);
	for (const FString& Name : Expected)
	{
		const bool bThere = Items.ContainsByPredicate([&Name](const TSharedPtr<FPlaceableItem>& Item) { return Item->AssetData.AssetName == FName(*Name); });
		TestTrue(*(Name + TEXT(" can be placed")), bThere);
	}
	TestEqual(TEXT("there are no others"), Items.Num(), Expected.Num());
	const TSharedPtr<FPlaceableItem>* SunSky = Items.FindByPredicate([](const TSharedPtr<FPlaceableItem>& Item) { return Item->AssetData.AssetName == FName(TEXT("SunSkyVlm")); });
	if (TestNotNull(TEXT("the sun and sky"), SunSky))
	{
		TestEqualSensitive(TEXT("has a name of its own"), *(*SunSky)->DisplayName.ToString(), TEXT("Sun Sky Velmorant"));
		TestEqualSensitive(TEXT("whose key is"), *FTextInspector::GetKey((*SunSky)->DisplayName).Get(FString()), TEXT("SunSkyVelmorant"));
		const FAssetData& Asset = (*SunSky)->AssetData;
		TestEqualSensitive(TEXT("it is a Blueprint of the plugin's"), *(Asset.PackageName.ToString() + TEXT(" ") + Asset.PackagePath.ToString() + TEXT(" ") + Asset.AssetClassPath.ToString()),
			TEXT("/VelmorantPro/Features/SunAndLights/SunSkyVlm /VelmorantPro/Features/SunAndLights /Script/Engine.Blueprint"));
		TestTrue(TEXT("made by the factory of Blueprints"), (*SunSky)->Factory && (*SunSky)->Factory->GetClass()->GetFName() == FName(TEXT("ActorFactoryBlueprint")));
		TestTrue(TEXT("and icons of the engine's"), (*SunSky)->ClassThumbnailBrushOverride == FName(TEXT("SunPosition.ModesThumbnail")) && (*SunSky)->ClassIconBrushOverride == FName(TEXT("SunPosition.ModesIcon")));
	}
	return true;
}

#endif
