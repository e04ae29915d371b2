// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/TestFlags.h"
#include "VelmorantEditorStyle.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantStyleTest
{
	/** Keys of a size, without what they all begin with. */
	struct FKeys
	{
		const TCHAR* Prefix;
		FVector2D Size;
		const TCHAR* Path; // below the plugin's Resources, up to the image's own name
		TArray<TPair<const TCHAR*, const TCHAR*>> Names; // and their images
	};

	const FKeys AllKeys[] = {
		{TEXT("Velmorant.Editor."), FVector2D(20.0f, 20.0f), TEXT("/Vlm_"),
			{{TEXT("Logo"), TEXT("Color_128x")},
				{TEXT("LogoGrey"), TEXT("Grey_128x")},
				{TEXT("LogoRamp"), TEXT("Ramp_128x")}}},
		{TEXT("Velmorant.Editor."), FVector2D(421.0f, 75.0f), TEXT("/Vlm_"),
			{{TEXT("Banner"), TEXT("Banner_small")}}},
		{TEXT("ClassThumbnail."), FVector2D(40.0f, 40.0f), TEXT("/ClassIcons/Class_"),
			{{TEXT("VlmInteractiveSpot"), TEXT("InteractiveSpot")},
				{TEXT("UnitVolumesManager"), TEXT("UnitVolumesManager")},
				{TEXT("UnitVolumeActor"), TEXT("UnitVolumeActor")},
				{TEXT("CuttingSectionScene"), TEXT("CuttingSection")},
				{TEXT("VelmorantLevelConfiguration"), TEXT("LevelConfiguration")},
				{TEXT("VelmorantWalkCharacter"), TEXT("WalkChar")},
				{TEXT("VelmorantOrbitalCharacter"), TEXT("OrbitalChar")},
				{TEXT("VelmorantPanoramicCharacter"), TEXT("PanoramicChar")},
				{TEXT("VelmorantLevelVariantSetsActor"), TEXT("LevelVariant")},
				{TEXT("VelmorantConfiguratorDataAsset"), TEXT("ConfiguratorDataAsset")},
				{TEXT("VelmorantConfiguratorItemOverride"), TEXT("ConfiguratorItemOverrideAsset")},
				{TEXT("VelmorantMapsLinkerConfig"), TEXT("MapLinker")},
				{TEXT("MinimapLevelController"), TEXT("MinimapCapture")},
				{TEXT("MinimapFloorAnchor"), TEXT("MinimapCapture")},
				{TEXT("MinimapConfigAsset"), TEXT("MinimapConfiguration")},
				{TEXT("VelmorantUIStyleConfiguration"), TEXT("UIStyleConfiguration")},
				{TEXT("UnitVolumeAction"), TEXT("VelmorantObject")},
				{TEXT("VlmISPActionBase"), TEXT("VelmorantObject")},
				{TEXT("VelmorantViewConfig"), TEXT("VelmorantObject")}}},
		{TEXT("ClassIcon."), FVector2D(16.0f, 16.0f), TEXT("/ClassIcons/Icon_"),
			{{TEXT("VlmInteractiveSpot"), TEXT("InteractiveSpot")},
				{TEXT("UnitVolumesManager"), TEXT("UnitVolumesManager")},
				{TEXT("UnitVolumeActor"), TEXT("UnitVolumeActor")},
				{TEXT("CuttingSectionScene"), TEXT("CuttingSection")},
				{TEXT("VelmorantLevelConfiguration"), TEXT("LevelConfiguration")},
				{TEXT("VelmorantWalkCharacter"), TEXT("WalkChar")},
				{TEXT("VelmorantOrbitalCharacter"), TEXT("OrbitalChar")},
				{TEXT("VelmorantPanoramicCharacter"), TEXT("PanoramicChar")},
				{TEXT("VelmorantLevelVariantSetsActor"), TEXT("LevelVariant")},
				{TEXT("VelmorantMapsLinkerConfig"), TEXT("MapLinker")},
				{TEXT("MinimapLevelController"), TEXT("MinimapCapture")},
				{TEXT("MinimapFloorAnchor"), TEXT("MinimapCapture")},
				{TEXT("MinimapConfigAsset"), TEXT("MinimapConfiguration")}}},
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleStyleTest, "Velmorant.Module.Style", VelmorantTests::Flags)

bool FVelmorantModuleStyleTest::RunTest(const FString&)
{
	const ISlateStyle* Style = FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle");
	if (!TestNotNull(TEXT("the style set is registered"), Style))
	{
		return false;
	}
	TestSamePtr(TEXT("and is the one that the module gives"), Style, &FVelmorantEditorStyle::Get());
	int32 NumKeys = 0;
	for (const VelmorantStyleTest::FKeys& Keys : VelmorantStyleTest::AllKeys)
	{
		for (const TPair<const TCHAR*, const TCHAR*>& Name : Keys.Names)
		{
			const FString Key = FString(Keys.Prefix) + Name.Key;
			const FSlateBrush* Brush = Style->GetBrush(FName(*Key));
			const FVector2D Size(Brush->ImageSize.X, Brush->ImageSize.Y);
			const FString File = Brush->GetResourceName().ToString();
			TestTrue(*(Key + TEXT(" has an image that is there")), Brush != Style->GetDefaultBrush() && IFileManager::Get().FileExists(*File));
			TestTrue(*(Key + TEXT(" has its image")), File.EndsWith(FString(TEXT("Resources")) + Keys.Path + Name.Value + TEXT(".png"), ESearchCase::CaseSensitive));
			TestTrue(*(Key + TEXT(" has its size")), Size.Equals(Keys.Size));
			++NumKeys;
		}
	}
	TestEqual(TEXT("37 registrations, of which one repeats a key"), NumKeys, 36);
	return true;
}

#endif
