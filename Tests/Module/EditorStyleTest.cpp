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
