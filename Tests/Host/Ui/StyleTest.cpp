// Copyright Velmorant. All Rights Reserved.

#include "Brushes/SlateImageBrush.h"
#include "HostStyles.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"
#include "UiTestEditor.h"

using StyleSets = FUiTestEditor;

TEST_F(StyleSets, TheLaterBrushOfAKeyReplacesTheEarlierAndBothAreOnRecord)
{
	FSlateStyleSet Style(FName(TEXT("TestStyle")));
	Style.Set(FName(TEXT("Logo")), new FSlateImageBrush(TEXT("First"), FVector2D(20.0, 20.0)));
	const FSlateBrush* First = Style.GetBrush(FName(TEXT("Logo")));
	Style.Set(FName(TEXT("Logo")), new FSlateImageBrush(TEXT("Second"), FVector2D(40.0, 16.0)));
	FSlateStyleRegistry::RegisterSlateStyle(Style);

	EXPECT_EQ(Style.GetBrush(FName(TEXT("logo")))->GetResourceName(), FName(TEXT("Second")));
	EXPECT_EQ(First->GetResourceName(), FName(TEXT("First"))) << "who holds the replaced brush can go on using it";
	const TArray<FHostBrushRegistration> Registrations = HostStyles::GetBrushRegistrations(FName(TEXT("TestStyle")));
	ASSERT_EQ(Registrations.Num(), 2);
	EXPECT_EQ(Registrations[1].Brush->GetImageSize().X, 40.0f);
	EXPECT_EQ(Registrations[1].Brush->GetImageSize().Y, 16.0f);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}

TEST_F(StyleSets, IconsFindStyleSetsThatAreRegisteredLater)
{
	const FSlateIcon Icon(FName(TEXT("LateStyle")), FName(TEXT("Logo")));
	const FSlateBrush* Missing = Icon.GetIcon();
	ASSERT_NE(Missing, nullptr);

	FSlateStyleSet Style(FName(TEXT("LateStyle")));
	Style.Set(FName(TEXT("Logo")), new FSlateImageBrush(TEXT("Logo"), FVector2f(16.0f, 16.0f)));
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetIcon()->GetResourceName(), FName(TEXT("Logo")));

	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetIcon(), Missing);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(FName(TEXT("LateStyle"))), nullptr);
}
