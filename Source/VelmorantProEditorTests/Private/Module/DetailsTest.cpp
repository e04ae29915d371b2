// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Engine/World.h"
#include "IDetailTreeNode.h"
#include "Support/DetailRows.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "UObject/Package.h"
#include "VelmorantLevelActors.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantDetailsTest
{
	AVlmInteractiveSpot* SpawnSpot(const FVelmorantEditorState& State)
	{
		AVlmInteractiveSpot* Spot = State.GetWorld()->SpawnActor<AVlmInteractiveSpot>();
		Spot->GetPackage()->SetDirtyFlag(false);
		return Spot;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleColorDetailsTest, "Velmorant.Module.Details.Color", VelmorantTests::Flags)

bool FVelmorantModuleColorDetailsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	AVlmInteractiveSpot* Spot = VelmorantDetailsTest::SpawnSpot(State);
	const FVelmorantDetailRows Rows({Spot, VelmorantDetailsTest::SpawnSpot(State)});
	const TSharedPtr<IDetailTreeNode> Color = Rows.Find("BackgroundColor");
	if (!TestValid(TEXT("the colour has a row"), Color))
	{
		return false;
	}
	TestEqualSensitive(TEXT("with the picker's rows below"), *FString::Join(FVelmorantDetailRows::CollectNames(Color.ToSharedRef()), TEXT(", ")), TEXT("Color Mode, Color, Use Contrast, Color Custom, Override Opacity, Opacity Override"));
	TestTrue(TEXT("colours are chosen from a list that can be searched"), FVelmorantDetailRows::CountWidgets(Color.ToSharedRef(), TEXT("SSearchableComboBox")) + FVelmorantDetailRows::CountWidgets(Color.ToSharedRef(), TEXT("SComboBox")) > 0);
	TestFalse(TEXT("looking changes nothing"), Spot->GetPackage()->IsDirty());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleIconDetailsTest, "Velmorant.Module.Details.FontIcon", VelmorantTests::Flags)

bool FVelmorantModuleIconDetailsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	AVlmInteractiveSpot* Spot = VelmorantDetailsTest::SpawnSpot(State);
	const FVelmorantDetailRows Rows({Spot});
	const TSharedPtr<IDetailTreeNode> Icon = Rows.Find("Icon");
	if (!TestValid(TEXT("the icon has a row"), Icon))
	{
		return false;
	}
	TArray<FString> Names = FVelmorantDetailRows::CollectNames(Icon.ToSharedRef());
	Names.SetNum(FMath::Min(Names.Num(), 5)); // the colour's own rows follow
	TestEqualSensitive(TEXT("with the picker's rows below"), *FString::Join(Names, TEXT(", ")), TEXT("Font Icon Name, Icon Style, Icon Name, Icon List, Icon Color"));
	TestEqual(TEXT("icons are shown as tiles"), FVelmorantDetailRows::CountWidgets(Icon.ToSharedRef(), TEXT("STileView")), 1);
	TestEqual(TEXT("and can be searched for"), FVelmorantDetailRows::CountWidgets(Icon.ToSharedRef(), TEXT("SSearchBox")), 1);
	TestFalse(TEXT("looking changes nothing"), Spot->GetPackage()->IsDirty());
	return true;
}

#endif
