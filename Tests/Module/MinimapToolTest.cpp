// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "EditorWidgets/VlmEWMinimapTool.h"
#include "Engine/World.h"
#include "HostObjects.h"
#include "MinimapConfigAsset.h"
#include "MinimapLevelController.h"
#include "PanelLayouts.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace MinimapToolTest
{
	const FWidgetTransform Moved(FVector2D(120.0, -40.0), FVector2D(0.5, 2.0), FVector2D(3.0, 4.0), 30.0f);

	/** Gives an actor a value as a designer would in the details view, in the form of its text. */
	void SetValue(AActor* Actor, const TCHAR* Name, const FString& Value)
	{
		const FProperty* Property = Actor->GetClass()->FindPropertyByName(Name);
		ASSERT_NE(Property, nullptr);
		ASSERT_NE(Property->ImportText_InContainer(*Value, Actor, Actor, PPF_None), nullptr);
	}
}

using namespace MinimapToolTest;

class MinimapTool : public FToolkitTest
{
protected:
	MinimapTool() { StartEditor(); }

	static UWorld& GetWorld() { return *GEditor->GetEditorWorldContext().World(); }

	/** A controller in the open level. Fewer than no floors: without configuration. */
	static AMinimapLevelController* SpawnController(int32 NumFloors)
	{
		AMinimapLevelController* Controller = GetWorld().SpawnActor<AMinimapLevelController>();
		if (NumFloors >= 0)
		{
			UMinimapConfigAsset* Config = NewObject<UMinimapConfigAsset>(CreatePackage(TEXT("/Game/Minimap")));
			Config->Floors.SetNum(NumFloors);
			SetValue(Controller, TEXT("MinimapConfiguration"), Config->GetPathName());
		}
		return Controller;
	}

	/** What the panel offers for picking a floor; it starts from other numbers. */
	static std::vector<int32> FloorRange(const UVlmEWMinimapTool& Tool)
	{
		int32 MinFloor = 17;
		int32 MaxFloor = 18;
		const bool bAny = Tool.GetMinimapFloorRange(MinFloor, MaxFloor);
		EXPECT_EQ(bAny, Tool.HasMinimapFloors());
		return {MinFloor, MaxFloor};
	}

	static FTestPanel MakePanel(UObject* Outer) { return FTestPanel(PanelLayouts::MinimapTool, {TEXT("OnScanMinimapLevel")}, Outer); }

	/** What Blueprints see of the controller. */
	static const UObject* ControllerOf(const UVlmEWMinimapTool& Tool)
	{
		return CastField<FObjectProperty>(Tool.GetClass()->FindPropertyByName(TEXT("MinimapLevelController")))->GetObjectPropertyValue_InContainer(&Tool);
	}
};

TEST_F(MinimapTool, LooksAtTheLevelAsItIsMade)
{
	const AMinimapLevelController* Controller = SpawnController(3);
	FTestPanel Panel = MakePanel(&GetWorld());
	UVlmEWMinimapTool* Tool = Panel.Get<UVlmEWMinimapTool>();
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnScanMinimapLevel"));
	EXPECT_EQ(ControllerOf(*Tool), Controller);
	EXPECT_EQ(Tool->GetMinimapConfig(), Controller->GetMinimapConfiguration());
	EXPECT_THAT(FloorRange(*Tool), ElementsAre(1, 4)) << "one above the number of floors";
	EXPECT_EQ(Tool->GetActiveMinimapFloor(), -1);
}

TEST_F(MinimapTool, TellsALevelWithoutController)
{
	FTestPanel Panel = MakePanel(&GetWorld());
	UVlmEWMinimapTool* Tool = Panel.Get<UVlmEWMinimapTool>();
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnScanMinimapLevel"));
	EXPECT_EQ(Tool->GetActiveMinimapFloor(), -1);
	EXPECT_EQ(Tool->GetMinimapConfig(), nullptr);
	EXPECT_THAT(FloorRange(*Tool), ElementsAre(1, 0));
	EXPECT_FALSE(Tool->SetActiveMinimapFloor(0));
	Tool->SetActiveFloorWidgetTransform(Moved); // does nothing
}

TEST_F(MinimapTool, DoesNothingOutsideAWorld)
{
	SpawnController(2);
	FTestPanel Panel = MakePanel(nullptr);
	Panel.Get<UVlmEWMinimapTool>()->FindMinimapLevelController();
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_FALSE(Panel.Get<UVlmEWMinimapTool>()->HasMinimapFloors());
}

TEST_F(MinimapTool, LooksAnewWhenTold)
{
	FTestPanel Panel = MakePanel(&GetWorld());
	UVlmEWMinimapTool* Tool = Panel.Get<UVlmEWMinimapTool>();
	AMinimapLevelController* Controller = SpawnController(1);
	EXPECT_FALSE(Tool->HasMinimapFloors()) << "nobody told it to look";
	Tool->FindMinimapLevelController();
	EXPECT_TRUE(Tool->HasMinimapFloors());
	Controller->Destroy();
	Tool->FindMinimapLevelController();
	EXPECT_FALSE(Tool->HasMinimapFloors());
	EXPECT_EQ(ControllerOf(*Tool), nullptr);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnScanMinimapLevel", "OnScanMinimapLevel", "OnScanMinimapLevel"));
}

TEST_F(MinimapTool, LooksAfterItsBlueprintWasInitialized)
{
	FTestPanel Panel(PanelLayouts::MinimapTool, {TEXT("OnInitialized"), TEXT("OnScanMinimapLevel")}, &GetWorld());
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnInitialized", "OnScanMinimapLevel"));
}

TEST_F(MinimapTool, PlacesTheActiveFloorAndDoesNothingElse)
{
	const AMinimapLevelController* Controller = SpawnController(3);
	const TArray<FMinimapFloor>& Floors = Controller->GetMinimapConfiguration()->Floors;
	const FTestPanel Panel = MakePanel(&GetWorld());
	UVlmEWMinimapTool* Tool = Panel.Get<UVlmEWMinimapTool>();
	Tool->SetActiveMinimapFloor(1);
	UPackage* const Packages[] = {Controller->GetPackage(), Controller->GetMinimapConfiguration()->GetPackage()};
	for (UPackage* Package : Packages)
	{
		Package->SetDirtyFlag(false);
	}

	Tool->SetActiveFloorWidgetTransform(Moved);
	EXPECT_TRUE(Floors[0].WidgetTransform.IsIdentity());
	EXPECT_EQ(Floors[1].WidgetTransform, Moved);
	EXPECT_TRUE(Floors[2].WidgetTransform.IsIdentity());
	for (const UPackage* Package : Packages)
	{
		EXPECT_FALSE(Package->IsDirty());
	}
}

TEST_F(MinimapTool, PlacesNothingWhenNoFloorIsActive)
{
	AMinimapLevelController* Controller = SpawnController(1);
	const FTestPanel Panel = MakePanel(&GetWorld());
	for (const int32 ActiveFloor : {-1, 1, 1000})
	{
		SetValue(Controller, TEXT("ActiveFloorIndex"), FString::FromInt(ActiveFloor));
		Panel.Get<UVlmEWMinimapTool>()->SetActiveFloorWidgetTransform(Moved);
		EXPECT_TRUE(Controller->GetMinimapConfiguration()->Floors[0].WidgetTransform.IsIdentity()) << ActiveFloor;
	}
}

TEST_F(MinimapTool, SurvivesTheControllerThatItFound)
{
	AMinimapLevelController* Controller = SpawnController(2);
	const FTestPanel Panel = MakePanel(&GetWorld());
	UVlmEWMinimapTool* Tool = Panel.Get<UVlmEWMinimapTool>();
	Tool->SetActiveMinimapFloor(1);
	Controller->Destroy();
	HostObjects::CollectGarbage();
	Tool->SetActiveFloorWidgetTransform(Moved);
	EXPECT_EQ(Tool->GetActiveMinimapFloor(), -1);
	EXPECT_FALSE(Tool->HasMinimapFloors());
	EXPECT_FALSE(Tool->SetActiveMinimapFloor(0));
}

TEST_F(MinimapTool, TwoToolsShowOneMinimap)
{
	SpawnController(2);
	const FTestPanel First = MakePanel(&GetWorld());
	const FTestPanel Second = MakePanel(&GetWorld());
	First.Get<UVlmEWMinimapTool>()->SetActiveMinimapFloor(1);
	EXPECT_EQ(Second.Get<UVlmEWMinimapTool>()->GetActiveMinimapFloor(), 1);
}

TEST_F(MinimapTool, TheControllerTellsItsActiveFloorsPlace)
{
	AMinimapLevelController* Controller = SpawnController(2);
	EXPECT_FALSE(Controller->HasActiveFloor());
	EXPECT_TRUE(Controller->GetActiveFloorTransform().IsIdentity());
	Controller->SetActiveFloor(1);
	Controller->GetMinimapConfiguration()->Floors[1].WidgetTransform = Moved;
	EXPECT_TRUE(Controller->HasActiveFloor());
	EXPECT_EQ(Controller->GetActiveFloorTransform(), Moved);
	Controller->GetMinimapConfiguration()->Floors.Pop(); // the active one
	EXPECT_FALSE(Controller->HasActiveFloor());
	EXPECT_TRUE(Controller->GetActiveFloorTransform().IsIdentity());
}
