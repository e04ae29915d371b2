// Copyright Velmorant. All Rights Reserved.

#include "HostAssertions.h"
#include "HostSlate.h"
#include "HostStyles.h"
#include "Interfaces/IPluginManager.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateStyle.h"
#include "ToolkitTest.h"
#include "VelmorantEditorStyle.h"

#include <array>
#include <cstring>
#include <fstream>
#include <set>

using testing::StartsWith;

/** Reaches the style's private instance: naming a private member is allowed where a template is instantiated by hand. */
TSharedPtr<FSlateStyleSet>& GetStyleInstance();

template<TSharedPtr<FSlateStyleSet>* Instance>
struct TStyleInstanceAccess
{
	friend TSharedPtr<FSlateStyleSet>& GetStyleInstance() { return *Instance; }
};

template struct TStyleInstanceAccess<&FVelmorantEditorStyle::VelmorantEditorStyleInstance>;

class EditorStyle : public FToolkitTest
{
protected:
	static TArray<FHostBrushRegistration> GetBrushes() { return HostStyles::GetBrushRegistrations("VelmorantEditorStyle"); }

	/** In pixels, from the head of the file; zero when it is no PNG. */
	static FVector2D ReadPngSize(const std::string& Path)
	{
		std::array<unsigned char, 24> Head = {};
		std::ifstream(Path, std::ios::binary).read(reinterpret_cast<char*>(Head.data()), Head.size());
		if (std::memcmp(Head.data(), "\x89PNG\r\n\x1a\n", 8) != 0)
		{
			return FVector2D(0.0, 0.0);
		}
		const auto Read = [&Head](size_t At) { return (Head[At] << 24) + (Head[At + 1] << 16) + (Head[At + 2] << 8) + Head[At + 3]; };
		return FVector2D(Read(16), Read(20));
	}

	static std::string Describe(const FHostBrushRegistration& Registration)
	{
		const FString Root = IPluginManager::Get().FindPlugin(TEXT("VelmorantPro"))->GetBaseDir() + TEXT("/Resources");
		const FString Path = Registration.Brush->GetResourceName().ToString();
		EXPECT_THAT(ToUtf8(Path), StartsWith(ToUtf8(Root)));
		const FVector2D Size(Registration.Brush->GetImageSize());
		return ToUtf8(Registration.Key) + " " + ToUtf8(Path.RightChop(Root.Len())) + " " + std::to_string(static_cast<int>(Size.X)) + "x" + std::to_string(static_cast<int>(Size.Y));
	}
};

TEST_F(EditorStyle, RegistersItsBrushesInOrder)
{
	const char* const Expected[] = {
		"Velmorant.Editor.Logo /Vlm_Color_128x.png 20x20",
		"Velmorant.Editor.LogoGrey /Vlm_Grey_128x.png 20x20",
		"Velmorant.Editor.LogoRamp /Vlm_Ramp_128x.png 20x20",
		"Velmorant.Editor.Banner /Vlm_Banner_small.png 421x75",
		"ClassThumbnail.VlmInteractiveSpot /ClassIcons/Class_InteractiveSpot.png 40x40",
		"ClassIcon.VlmInteractiveSpot /ClassIcons/Icon_InteractiveSpot.png 16x16",
		"ClassThumbnail.UnitVolumesManager /ClassIcons/Class_UnitVolumesManager.png 40x40",
		"ClassIcon.UnitVolumesManager /ClassIcons/Icon_UnitVolumesManager.png 16x16",
		"ClassThumbnail.UnitVolumeActor /ClassIcons/Class_UnitVolumeActor.png 40x40",
		"ClassIcon.UnitVolumeActor /ClassIcons/Icon_UnitVolumeActor.png 16x16",
		"ClassThumbnail.CuttingSectionScene /ClassIcons/Class_CuttingSection.png 40x40",
		"ClassIcon.CuttingSectionScene /ClassIcons/Icon_CuttingSection.png 16x16",
		"ClassThumbnail.VelmorantLevelConfiguration /ClassIcons/Class_LevelConfiguration.png 40x40",
		"ClassIcon.VelmorantLevelConfiguration /ClassIcons/Icon_LevelConfiguration.png 16x16",
		"ClassThumbnail.VelmorantWalkCharacter /ClassIcons/Class_WalkChar.png 40x40",
		"ClassIcon.VelmorantWalkCharacter /ClassIcons/Icon_WalkChar.png 16x16",
		"ClassThumbnail.VelmorantOrbitalCharacter /ClassIcons/Class_OrbitalChar.png 40x40",
		"ClassIcon.VelmorantOrbitalCharacter /ClassIcons/Icon_OrbitalChar.png 16x16",
		"ClassThumbnail.VelmorantPanoramicCharacter /ClassIcons/Class_PanoramicChar.png 40x40",
		"ClassIcon.VelmorantPanoramicCharacter /ClassIcons/Icon_PanoramicChar.png 16x16",
		"ClassThumbnail.VelmorantLevelVariantSetsActor /ClassIcons/Class_LevelVariant.png 40x40",
		"ClassIcon.VelmorantLevelVariantSetsActor /ClassIcons/Icon_LevelVariant.png 16x16",
		"ClassThumbnail.VelmorantConfiguratorDataAsset /ClassIcons/Class_ConfiguratorDataAsset.png 40x40",
		"ClassThumbnail.VelmorantConfiguratorItemOverride /ClassIcons/Class_ConfiguratorItemOverrideAsset.png 40x40",
		"ClassThumbnail.VelmorantMapsLinkerConfig /ClassIcons/Class_MapLinker.png 40x40",
		"ClassIcon.VelmorantMapsLinkerConfig /ClassIcons/Icon_MapLinker.png 16x16",
		"ClassThumbnail.MinimapLevelController /ClassIcons/Class_MinimapCapture.png 40x40",
		"ClassIcon.MinimapLevelController /ClassIcons/Icon_MinimapCapture.png 16x16",
		"ClassThumbnail.MinimapFloorAnchor /ClassIcons/Class_MinimapCapture.png 40x40",
		"ClassIcon.MinimapFloorAnchor /ClassIcons/Icon_MinimapCapture.png 16x16",
		"ClassThumbnail.MinimapConfigAsset /ClassIcons/Class_MinimapConfiguration.png 40x40",
		"ClassIcon.MinimapConfigAsset /ClassIcons/Icon_MinimapConfiguration.png 16x16",
		"ClassThumbnail.VelmorantUIStyleConfiguration /ClassIcons/Class_UIStyleConfiguration.png 40x40",
		"ClassThumbnail.UnitVolumeAction /ClassIcons/Class_VelmorantObject.png 40x40",
		"ClassThumbnail.VlmISPActionBase /ClassIcons/Class_VelmorantObject.png 40x40",
		"ClassThumbnail.VelmorantViewConfig /ClassIcons/Class_VelmorantObject.png 40x40",
		"Velmorant.Editor.LogoGrey /Vlm_Grey_128x.png 20x20",
	};
	StartEditor();
	std::vector<std::string> Brushes;
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		Brushes.push_back(Describe(Registration));
	}
	EXPECT_THAT(Brushes, testing::ElementsAreArray(Expected));
}

TEST_F(EditorStyle, RepeatsOneKeyAndTheLaterBrushCounts)
{
	StartEditor();
	std::set<std::string> Keys;
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		Keys.insert(ToUtf8(Registration.Key));
		EXPECT_EQ(Registration.Brush->TintColor.GetSpecifiedColor(), FLinearColor::White);
		EXPECT_EQ(Registration.Brush->DrawAs, ESlateBrushDrawType::Image);
		EXPECT_EQ(Registration.Brush->Tiling, ESlateBrushTileType::NoTile);
		EXPECT_EQ(Registration.Brush->ImageType, ESlateBrushImageType::FullColor);
	}
	EXPECT_EQ(Keys.size(), 36u);
	EXPECT_EQ(FVelmorantEditorStyle::Get().GetBrush("Velmorant.Editor.LogoGrey"), GetBrushes().Last().Brush);
}

TEST_F(EditorStyle, HasAPictureForEveryBrushThatIsSharpAtTwiceItsSize)
{
	StartEditor();
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		SCOPED_TRACE(ToUtf8(Registration.Key));
		const FVector2D Brush(Registration.Brush->GetImageSize());
		const FVector2D Picture = ReadPngSize(ToUtf8(Registration.Brush->GetResourceName()));
		EXPECT_GE(Picture.X, 2.0 * Brush.X);
		EXPECT_EQ(Picture.X * Brush.Y, Picture.Y * Brush.X) << "the brush would stretch it";
	}
}

TEST_F(EditorStyle, HasImagesForClassesThatExist)
{
	StartEditor();
	std::vector<std::string> Missing;
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		FString ClassName = Registration.Key.ToString();
		const bool bOfAClass = ClassName.RemoveFromStart(TEXT("ClassIcon.")) || ClassName.RemoveFromStart(TEXT("ClassThumbnail."));
		const auto Exists = [&ClassName](const TCHAR* Module) { return FindObject<UClass>(nullptr, *FString::Printf(TEXT("/Script/%s.%s"), Module, *ClassName)) != nullptr; };
		if (bOfAClass && !Exists(TEXT("VelmorantPro")) && !Exists(TEXT("VelmorantProUI")))
		{
			Missing.push_back(ToUtf8(ClassName));
		}
	}
	EXPECT_THAT(Missing, testing::ElementsAre("VlmISPActionBase")) << "its class has an s more; the key stays as it is";
}

TEST_F(EditorStyle, AsksTheRendererToLoadTexturesAgain)
{
	StartEditor();
	FVelmorantEditorStyle::ReloadTextures();
	EXPECT_EQ(HostSlate::GetTextureReloads(), 1);
	HostSlate::Stop();
	FVelmorantEditorStyle::ReloadTextures(); // asks nobody
}

TEST_F(EditorStyle, IsMadeOnlyOnce)
{
	StartEditor();
	const ISlateStyle* Style = &FVelmorantEditorStyle::Get();
	FVelmorantEditorStyle::Initialize();
	EXPECT_EQ(&FVelmorantEditorStyle::Get(), Style);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle"), Style);
}

TEST_F(EditorStyle, MayBeHeldByNobodyElseWhenItEnds)
{
	StartEditor();
	TSharedPtr<FSlateStyleSet> Held = GetStyleInstance();
	try
	{
		FVelmorantEditorStyle::Shutdown();
		ADD_FAILURE() << "a style set that is still held was let go";
	}
	catch (const FHostAssertionFailure& Failure)
	{
		EXPECT_EQ(Failure.GetExpression(), "VelmorantEditorStyleInstance.IsUnique()");
	}
}

TEST_F(EditorStyle, CannotBeAskedForOutsideItsLife)
{
	StartEditor();
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("VelmorantProEditor"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle"), nullptr);
	EXPECT_THROW(FVelmorantEditorStyle::Get(), FHostAssertionFailure);
}
