// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "ReflectionSweep.h"
#include "TestDoor.h"
#include "TestWall.h"
#include "UObject/UnrealType.h"

namespace ReflectionTest
{
	class Reflection : public FObjectSystemTest
	{
	};

	TEST_F(Reflection, EveryTypeHoldsWhatItsRecordPromises)
	{
		const ReflectionSweep::FCounts Counts = ReflectionSweep::CheckAll();
		EXPECT_GE(Counts.Classes, 15);
		EXPECT_GE(Counts.Structs, 15);
		EXPECT_GE(Counts.Enums, 3);
		EXPECT_GE(Counts.Functions, 10);
	}

	TEST_F(Reflection, PropertiesComeInOrderOwnOnesFirst)
	{
		TArray<FName> Own;
		for (const FProperty* Property : TFieldRange<FProperty>(UTestOuterWall::StaticClass(), EFieldIterationFlags::None))
		{
			Own.Add(Property->GetFName());
		}
		EXPECT_EQ(Own, (TArray<FName>{TEXT("Insulation")}));

		TFieldIterator<FProperty> All(UTestOuterWall::StaticClass());
		EXPECT_EQ(All->GetFName(), FName("Insulation"));
		++All;
		EXPECT_EQ(All->GetFName(), FName("Number"));

		int32 NumMaps = 0;
		for (TFieldIterator<FMapProperty> It(UTestOuterWall::StaticClass()); It; ++It)
		{
			++NumMaps;
		}
		EXPECT_EQ(NumMaps, 2);
	}

	TEST_F(Reflection, PropertiesReachPrivateMembersAndKnowTheirTypes)
	{
		UTestWall* Wall = NewObject<UTestWall>();
		const FIntProperty* Secret = FindFProperty<FIntProperty>(Wall->GetClass(), TEXT("secret"));
		ASSERT_NE(Secret, nullptr) << "names ignore case";
		EXPECT_EQ(Secret->GetPropertyValue_InContainer(Wall), 3);

		const TPair<const TCHAR*, const char*> Cases[] = {
			{TEXT("Finish"), "FTestFinish"},
			{TEXT("Others"), "TArray<TObjectPtr<UObject>>"},
			{TEXT("CoatsByRoom"), "TMap<FName,FTestCoat>"},
			{TEXT("Tags"), "TSet<FName>"},
			{TEXT("Kind"), "TSubclassOf<UTestWall>"},
			{TEXT("Soft"), "TSoftObjectPtr<UTestWall>"},
			{TEXT("Weak"), "TWeakObjectPtr<UObject>"},
			{TEXT("Byte"), "uint8"},
		};
		for (const TPair<const TCHAR*, const char*>& Case : Cases)
		{
			EXPECT_EQ(Utf8(Wall->GetClass()->FindPropertyByName(Case.Key)->GetCPPType()), Case.Value);
		}
		EXPECT_EQ(CastField<FObjectProperty>(Wall->GetClass()->FindPropertyByName(TEXT("Door")))->PropertyClass, UTestDoor::StaticClass());
		EXPECT_EQ(CastField<FNumericProperty>(Wall->GetClass()->FindPropertyByName(TEXT("Note"))), nullptr);
	}

	TEST_F(Reflection, MetadataSpeaksOfWhatPeopleSee)
	{
		const FProperty* LoadBearing = UTestWall::StaticClass()->FindPropertyByName(TEXT("bLoadBearing"));
		EXPECT_EQ(Utf8(LoadBearing->GetDisplayNameText().ToString()), "Load bearing");
		EXPECT_EQ(Utf8(LoadBearing->GetToolTipText().ToString()), "Whether it carries the floor above.");
		EXPECT_EQ(Utf8(LoadBearing->GetMetaData(TEXT("category"))), "Wall");
		EXPECT_FALSE(LoadBearing->HasMetaData(TEXT("BindWidget")));
		EXPECT_TRUE(LoadBearing->HasAnyPropertyFlags(CPF_BlueprintReadOnly));
		const FProperty* Washable = FTestFinish::StaticStruct()->FindPropertyByName(TEXT("bWashable"));
		EXPECT_EQ(Utf8(Washable->GetDisplayNameText().ToString()), "Washable");
		EXPECT_EQ(Utf8(UTestWall::StaticClass()->FindPropertyByName(TEXT("CoatsByRoom"))->GetDisplayNameText().ToString()), "Coats By Room");
		EXPECT_TRUE(UTestWall::StaticClass()->FindPropertyByName(TEXT("Visits"))->HasAnyPropertyFlags(CPF_Transient));
	}

	TEST_F(Reflection, EnumsTranslateBetweenNamesAndValues)
	{
		const UEnum* Gloss = StaticEnum<ETestGloss>();
		EXPECT_EQ(Gloss->NumEnums(), 4) << "the last one is the engine's";
		EXPECT_EQ(Utf8(Gloss->GetNameStringByValue(10)), "HighGloss");
		EXPECT_EQ(Gloss->GetValueByName(TEXT("SemiGloss")), 1);
		EXPECT_EQ(Gloss->GetValueByName(TEXT("ETestGloss::SemiGloss")), 1);
		EXPECT_EQ(Gloss->GetIndexByNameString(TEXT("Wet")), INDEX_NONE);
		EXPECT_EQ(Gloss->GetIndexByValue(2), INDEX_NONE);
		EXPECT_EQ(Utf8(Gloss->GetDisplayNameTextByValue(1).ToString()), "Semi-gloss");
		EXPECT_EQ(Utf8(Gloss->GetDisplayNameTextByValue(10).ToString()), "High Gloss");
		EXPECT_EQ(Utf8(StaticEnum<ETestSurface::Type>()->GetNameStringByValue(ETestSurface::Ceiling)), "Ceiling");
	}

	TEST_F(Reflection, StructsOfCoreTypesAreReflected)
	{
		EXPECT_EQ(Utf8(TBaseStructure<FVector>::Get()->GetPathName()), "/Script/CoreUObject.Vector");
		EXPECT_EQ(TBaseStructure<FLinearColor>::Get()->GetOwnProperties().Num(), 4);
		FLinearColor Color(1, 1, 1);
		TBaseStructure<FLinearColor>::Get()->ClearScriptStruct(&Color);
		EXPECT_EQ(Color, FLinearColor(0, 0, 0, 0)) << "reflection starts with zeros";
	}

	TEST_F(Reflection, ContainersAreChangedThroughTheirProperties)
	{
		UTestWall* Wall = NewObject<UTestWall>();
		FScriptArrayHelper Marks(CastField<FArrayProperty>(Wall->GetClass()->FindPropertyByName(TEXT("Marks"))), &Wall->Marks);
		Marks.Resize(2);
		*reinterpret_cast<int32*>(Marks.GetRawPtr(1)) = 5;
		Marks.InsertValues(0);
		EXPECT_EQ(Wall->Marks, (TArray<int32>{0, 0, 5}));
		Marks.RemoveValues(0, 2);
		EXPECT_EQ(Wall->Marks, (TArray<int32>{5}));
	}

	TEST_F(Reflection, ChangesAreAnnounced)
	{
		UTestWall* Wall = NewObject<UTestWall>();
		TArray<FName> Changed;
		FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&Changed, Wall](UObject* Object, FPropertyChangedEvent& Event) {
			EXPECT_EQ(Object, Wall);
			Changed.Add(Event.Property ? Event.Property->GetFName() : FName());
		});
		Wall->PostEditChange();
		FPropertyChangedEvent Event(Wall->GetClass()->FindPropertyByName(TEXT("Note")), EPropertyChangeType::ValueSet);
		Wall->PostEditChangeProperty(Event);
		EXPECT_EQ(Changed, (TArray<FName>{NAME_None, TEXT("Note")}));
	}
}
