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

#include <filesystem>
#include <set>

using testing::StartsWith;

class EditorStyle : public FToolkitTest
{
protected:
	static TArray<FHostBrushRegistration> GetBrushes() { return HostStyles::GetBrushRegistrations("VelmorantEditorStyle"); }

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
	StartEditor();
	const TArray<FHostBrushRegistration> Brushes = GetBrushes();
	ASSERT_EQ(Brushes.Num(), 37);

	// Landmarks of the order: logos first, each class's thumbnail before its icon, the grey logo once more at the end.
	EXPECT_EQ(Describe(Brushes[0]), "Velmorant.Editor.Logo /Vlm_Color_128x.png 20x20");
	EXPECT_EQ(Describe(Brushes[1]), "Velmorant.Editor.LogoGrey /Vlm_Grey_128x.png 20x20");
	EXPECT_EQ(Describe(Brushes[2]), "Velmorant.Editor.LogoRamp /Vlm_Ramp_128x.png 20x20");
	EXPECT_EQ(Describe(Brushes[3]), "Velmorant.Editor.Banner /Vlm_Banner_small.png 421x75");
	EXPECT_EQ(Describe(Brushes[4]), "ClassThumbnail.VlmInteractiveSpot /ClassIcons/Class_InteractiveSpot.png 40x40");
	EXPECT_EQ(Describe(Brushes[5]), "ClassIcon.VlmInteractiveSpot /ClassIcons/Icon_InteractiveSpot.png 16x16");
	EXPECT_EQ(Describe(Brushes[10]), "ClassThumbnail.CuttingSectionScene /ClassIcons/Class_CuttingSection.png 40x40");
	EXPECT_EQ(Describe(Brushes[23]), "ClassThumbnail.VelmorantConfiguratorItemOverride /ClassIcons/Class_ConfiguratorItemOverrideAsset.png 40x40");
	EXPECT_EQ(Describe(Brushes[29]), "ClassIcon.MinimapFloorAnchor /ClassIcons/Icon_MinimapCapture.png 16x16");
	EXPECT_EQ(Describe(Brushes[34]), "ClassThumbnail.VlmISPActionBase /ClassIcons/Class_VelmorantObject.png 40x40");
	EXPECT_EQ(Describe(Brushes[35]), "ClassThumbnail.VelmorantViewConfig /ClassIcons/Class_VelmorantObject.png 40x40");
	EXPECT_EQ(Describe(Brushes[36]), "Velmorant.Editor.LogoGrey /Vlm_Grey_128x.png 20x20");
}

TEST_F(EditorStyle, RepeatsOneKeyAndTheLaterBrushCounts)
{
	StartEditor();
	std::set<std::string> Keys;
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		Keys.insert(ToUtf8(Registration.Key));
		EXPECT_EQ(Registration.Brush->DrawAs, ESlateBrushDrawType::Image);
		EXPECT_EQ(Registration.Brush->Tiling, ESlateBrushTileType::NoTile);
		EXPECT_EQ(Registration.Brush->ImageType, ESlateBrushImageType::FullColor);
	}
	EXPECT_EQ(Keys.size(), 36u);
	EXPECT_EQ(FVelmorantEditorStyle::Get().GetBrush("Velmorant.Editor.LogoGrey"), GetBrushes().Last().Brush);
}

TEST_F(EditorStyle, HasAnImageFileForEveryBrush)
{
	StartEditor();
	for (const FHostBrushRegistration& Registration : GetBrushes())
	{
		EXPECT_TRUE(std::filesystem::exists(ToUtf8(Registration.Brush->GetResourceName()))) << ToUtf8(Registration.Key);
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
}

TEST_F(EditorStyle, IsMadeOnlyOnce)
{
	StartEditor();
	const ISlateStyle* Style = &FVelmorantEditorStyle::Get();
	FVelmorantEditorStyle::Initialize();
	EXPECT_EQ(&FVelmorantEditorStyle::Get(), Style);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle"), Style);
}

TEST_F(EditorStyle, CannotBeAskedForOutsideItsLife)
{
	StartEditor();
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("VelmorantProEditor"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle"), nullptr);
	EXPECT_THROW(FVelmorantEditorStyle::Get(), FHostAssertionFailure);
}
