// Copyright Velmorant. All Rights Reserved.

#include "Brushes/SlateImageBrush.h"
#include "CoreMinimal.h"
#include "Misc/ScopeExit.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantStyleKeysTest, "Velmorant.Engine.Styles.Keys", VelmorantTests::Flags)

bool FVelmorantStyleKeysTest::RunTest(const FString&)
{
	FSlateStyleSet Style(TEXT("VelmorantTestStyle"));
	Style.SetContentRoot(TEXT("C:/Plugin/Resources"));
	TestEqualSensitive(TEXT("images lie below the content root"), *Style.RootToContentDir(TEXT("Logo"), TEXT(".png")), TEXT("C:/Plugin/Resources/Logo.png"));
	TestEqualSensitive(TEXT("also with a slash in front"), *Style.RootToContentDir(TEXT("/ClassIcons/Icon"), TEXT(".png")), TEXT("C:/Plugin/Resources/ClassIcons/Icon.png"));
	Style.SetContentRoot(TEXT("C:/Plugin/Resources/"));
	TestEqualSensitive(TEXT("and of a root with one"), *Style.RootToContentDir(TEXT("Logo"), TEXT(".png")), TEXT("C:/Plugin/Resources/Logo.png"));
	Style.Set("Twice", new FSlateImageBrush(Style.RootToContentDir(TEXT("First"), TEXT(".png")), FVector2D(16.0f, 16.0f)));
	Style.Set("Twice", new FSlateImageBrush(Style.RootToContentDir(TEXT("Second"), TEXT(".png")), FVector2D(20.0f, 20.0f)));
	const FSlateBrush* Brush = Style.GetBrush("Twice");
	TestTrue(TEXT("a key that is set twice has the later brush"), Brush->GetResourceName() == FName(TEXT("C:/Plugin/Resources/Second.png")));
	TestEqual(TEXT("of its size"), static_cast<float>(Brush->ImageSize.X), 20.0f);
	TestNotNull(TEXT("an unknown key has the default brush"), Style.GetBrush("Unknown"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantStyleRegistryTest, "Velmorant.Engine.Styles.Registry", VelmorantTests::Flags)

bool FVelmorantStyleRegistryTest::RunTest(const FString&)
{
	FSlateStyleSet Style(TEXT("VelmorantTestStyle"));
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	TestSamePtr<ISlateStyle>(TEXT("a registered style is found by name"), FSlateStyleRegistry::FindSlateStyle("VelmorantTestStyle"), &Style);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	TestNull(TEXT("and no longer after that"), FSlateStyleRegistry::FindSlateStyle("VelmorantTestStyle"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantAppStyleTest, "Velmorant.Engine.Styles.EditorIcons", VelmorantTests::Flags)

bool FVelmorantAppStyleTest::RunTest(const FString&)
{
	const FSlateBrush* Missing = FAppStyle::Get().GetDefaultBrush();
	for (const TCHAR* Name : {TEXT("Icons.Settings"), TEXT("Icons.Help"), TEXT("Icons.Documentation"), TEXT("Icons.MakeStaticMesh")})
	{
		TestTrue(Name, FAppStyle::GetBrush(Name) != Missing);
	}
	return true;
}

#endif
