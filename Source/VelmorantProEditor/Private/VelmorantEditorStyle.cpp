// Copyright Velmorant. All Rights Reserved.

#include "VelmorantEditorStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace VelmorantEditorStyle
{
	struct FStyleImage
	{
		const TCHAR* Key;
		const TCHAR* Path; // below the content root, without extension
		FVector2D Size; // Slate units
	};

	const FVector2D Icon16(16.0f, 16.0f);
	const FVector2D Icon20(20.0f, 20.0f);
	const FVector2D Thumbnail40(40.0f, 40.0f);
	const FVector2D Banner421x75(421.0f, 75.0f);

	// In the order of registration.
	const FStyleImage Images[] = {
		{TEXT("Velmorant.Editor.Logo"), TEXT("Vlm_Color_128x"), Icon20},
		{TEXT("Velmorant.Editor.LogoGrey"), TEXT("Vlm_Grey_128x"), Icon20},
		{TEXT("Velmorant.Editor.LogoRamp"), TEXT("Vlm_Ramp_128x"), Icon20},
		{TEXT("Velmorant.Editor.Banner"), TEXT("Vlm_Banner_small"), Banner421x75},
		{TEXT("ClassThumbnail.VlmInteractiveSpot"), TEXT("/ClassIcons/Class_InteractiveSpot"), Thumbnail40},
		{TEXT("ClassIcon.VlmInteractiveSpot"), TEXT("/ClassIcons/Icon_InteractiveSpot"), Icon16},
		{TEXT("ClassThumbnail.UnitVolumesManager"), TEXT("/ClassIcons/Class_UnitVolumesManager"), Thumbnail40},
		{TEXT("ClassIcon.UnitVolumesManager"), TEXT("/ClassIcons/Icon_UnitVolumesManager"), Icon16},
		{TEXT("ClassThumbnail.UnitVolumeActor"), TEXT("/ClassIcons/Class_UnitVolumeActor"), Thumbnail40},
		{TEXT("ClassIcon.UnitVolumeActor"), TEXT("/ClassIcons/Icon_UnitVolumeActor"), Icon16},
		{TEXT("ClassThumbnail.CuttingSectionScene"), TEXT("/ClassIcons/Class_CuttingSection"), Thumbnail40},
		{TEXT("ClassIcon.CuttingSectionScene"), TEXT("/ClassIcons/Icon_CuttingSection"), Icon16},
		{TEXT("ClassThumbnail.VelmorantLevelConfiguration"), TEXT("/ClassIcons/Class_LevelConfiguration"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantLevelConfiguration"), TEXT("/ClassIcons/Icon_LevelConfiguration"), Icon16},
		{TEXT("ClassThumbnail.VelmorantWalkCharacter"), TEXT("/ClassIcons/Class_WalkChar"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantWalkCharacter"), TEXT("/ClassIcons/Icon_WalkChar"), Icon16},
		{TEXT("ClassThumbnail.VelmorantOrbitalCharacter"), TEXT("/ClassIcons/Class_OrbitalChar"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantOrbitalCharacter"), TEXT("/ClassIcons/Icon_OrbitalChar"), Icon16},
		{TEXT("ClassThumbnail.VelmorantPanoramicCharacter"), TEXT("/ClassIcons/Class_PanoramicChar"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantPanoramicCharacter"), TEXT("/ClassIcons/Icon_PanoramicChar"), Icon16},
		{TEXT("ClassThumbnail.VelmorantLevelVariantSetsActor"), TEXT("/ClassIcons/Class_LevelVariant"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantLevelVariantSetsActor"), TEXT("/ClassIcons/Icon_LevelVariant"), Icon16},
		{TEXT("ClassThumbnail.VelmorantConfiguratorDataAsset"), TEXT("/ClassIcons/Class_ConfiguratorDataAsset"), Thumbnail40},
		{TEXT("ClassThumbnail.VelmorantConfiguratorItemOverride"), TEXT("/ClassIcons/Class_ConfiguratorItemOverrideAsset"), Thumbnail40},
		{TEXT("ClassThumbnail.VelmorantMapsLinkerConfig"), TEXT("/ClassIcons/Class_MapLinker"), Thumbnail40},
		{TEXT("ClassIcon.VelmorantMapsLinkerConfig"), TEXT("/ClassIcons/Icon_MapLinker"), Icon16},
		{TEXT("ClassThumbnail.MinimapLevelController"), TEXT("/ClassIcons/Class_MinimapCapture"), Thumbnail40},
		{TEXT("ClassIcon.MinimapLevelController"), TEXT("/ClassIcons/Icon_MinimapCapture"), Icon16},
		{TEXT("ClassThumbnail.MinimapFloorAnchor"), TEXT("/ClassIcons/Class_MinimapCapture"), Thumbnail40},
		{TEXT("ClassIcon.MinimapFloorAnchor"), TEXT("/ClassIcons/Icon_MinimapCapture"), Icon16},
		{TEXT("ClassThumbnail.MinimapConfigAsset"), TEXT("/ClassIcons/Class_MinimapConfiguration"), Thumbnail40},
		{TEXT("ClassIcon.MinimapConfigAsset"), TEXT("/ClassIcons/Icon_MinimapConfiguration"), Icon16},
		{TEXT("ClassThumbnail.VelmorantUIStyleConfiguration"), TEXT("/ClassIcons/Class_UIStyleConfiguration"), Thumbnail40},
		{TEXT("ClassThumbnail.UnitVolumeAction"), TEXT("/ClassIcons/Class_VelmorantObject"), Thumbnail40},
		{TEXT("ClassThumbnail.VlmISPActionBase"), TEXT("/ClassIcons/Class_VelmorantObject"), Thumbnail40},
		{TEXT("ClassThumbnail.VelmorantViewConfig"), TEXT("/ClassIcons/Class_VelmorantObject"), Thumbnail40},

		// A second time, on purpose: the later registration replaces the first and must stay last.
		{TEXT("Velmorant.Editor.LogoGrey"), TEXT("Vlm_Grey_128x"), Icon20}};
}

TSharedPtr<FSlateStyleSet> FVelmorantEditorStyle::VelmorantEditorStyleInstance = nullptr;

void FVelmorantEditorStyle::Initialize()
{
	if (!VelmorantEditorStyleInstance.IsValid())
	{
		VelmorantEditorStyleInstance = Create();
		FSlateStyleRegistry::RegisterSlateStyle(*VelmorantEditorStyleInstance);
	}
}

void FVelmorantEditorStyle::Shutdown()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*VelmorantEditorStyleInstance);
	check(VelmorantEditorStyleInstance.IsUnique());
	VelmorantEditorStyleInstance.Reset();
}

void FVelmorantEditorStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

const ISlateStyle& FVelmorantEditorStyle::Get()
{
	return *VelmorantEditorStyleInstance;
}

FName FVelmorantEditorStyle::GetStyleSetName()
{
	static const FName StyleSetName(TEXT("VelmorantEditorStyle"));
	return StyleSetName;
}

TSharedRef<FSlateStyleSet> FVelmorantEditorStyle::Create()
{
	TSharedRef<FSlateStyleSet> Style = MakeShareable(new FSlateStyleSet(GetStyleSetName()));
	Style->SetContentRoot(IPluginManager::Get().FindPlugin(TEXT("VelmorantPro"))->GetBaseDir() / TEXT("Resources"));

	for (const VelmorantEditorStyle::FStyleImage& Image : VelmorantEditorStyle::Images)
	{
		Style->Set(Image.Key, new FSlateImageBrush(Style->RootToContentDir(Image.Path, TEXT(".png")), Image.Size));
	}
	return Style;
}
