// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestWall.h"
#include "UObject/UnrealType.h"

namespace ObjectConstructionTest
{
	class ObjectConstruction : public FObjectSystemTest
	{
	};

	TEST_F(ObjectConstruction, NewObjectsStartWithTheValuesOfTheDefaultObject)
	{
		UTestWall* Defaults = GetMutableDefault<UTestWall>();
		EXPECT_EQ(Utf8(Defaults->GetPathName()), "/Script/TestObjects.Default__TestWall");
		EXPECT_TRUE(Defaults->HasAnyFlags(RF_ClassDefaultObject));
		EXPECT_TRUE(Defaults->HasAnyFlags(RF_ArchetypeObject));
		Defaults->Number = 42;
		Defaults->Marks = {1, 2};
		Defaults->Finish.Coats.AddDefaulted_GetRef().Pigment = TEXT("Ochre");

		UTestWall* Wall = NewObject<UTestWall>();
		EXPECT_EQ(Wall->Number, 42);
		EXPECT_EQ(Wall->Marks, (TArray<int32>{1, 2}));
		ASSERT_EQ(Wall->Finish.Coats.Num(), 1);
		EXPECT_EQ(Wall->Finish.Coats[0].Pigment, FName("Ochre"));
		EXPECT_EQ(Wall->GetOuter(), GetTransientPackage());
	}

	TEST_F(ObjectConstruction, ConstructorsOfDerivedClassesHaveTheLastWord)
	{
		UTestOuterWall* Wall = NewObject<UTestOuterWall>();
		EXPECT_EQ(Wall->Thickness, 0.5f);
		EXPECT_EQ(Wall->Skirting->Height, 9);
		EXPECT_EQ(GetDefault<UTestWall>()->Thickness, 0.25f);
		EXPECT_EQ(GetDefault<UTestOuterWall>()->Insulation, 0.1f);
	}

	TEST_F(ObjectConstruction, EveryObjectOwnsItsDefaultSubobjects)
	{
		UTestWall* A = NewObject<UTestWall>();
		UTestWall* B = NewObject<UTestWall>();
		EXPECT_NE(A->Skirting, B->Skirting);
		EXPECT_NE(A->Skirting, GetDefault<UTestWall>()->Skirting);
		EXPECT_EQ(A->Skirting->GetOuter(), A);
		EXPECT_EQ(A->Skirting->GetFName(), FName("Skirting"));
		EXPECT_TRUE(A->Skirting->HasAnyFlags(RF_DefaultSubObject));
		EXPECT_TRUE(GetDefault<UTestWall>()->Skirting->HasAnyFlags(RF_ArchetypeObject));
		EXPECT_FALSE(A->Skirting->HasAnyFlags(RF_ArchetypeObject));
	}

	TEST_F(ObjectConstruction, ATemplateLendsItsValuesAndKeepsItsParts)
	{
		UTestWall* Template = NewObject<UTestWall>(GetTransientPackage(), TEXT("Template"));
		Template->Number = 5;
		Template->Visits = 9;
		Template->Skirting->Height = 12;
		Template->Other = Template->Skirting;
		Template->Others = {Template->Skirting.Get(), GetTransientPackage(), Template};

		UTestWall* Copy = NewObject<UTestWall>(GetTransientPackage(), TEXT("Copy"), RF_NoFlags, Template);
		EXPECT_EQ(Copy->Number, 5);
		EXPECT_EQ(Copy->Visits, 9);
		EXPECT_EQ(Copy->Other, Copy->Skirting) << "references into the template lead into the copy";
		EXPECT_EQ(Copy->Others[0], Copy->Skirting);
		EXPECT_EQ(Copy->Others[1], GetTransientPackage());

		UTestWall* Fresh = NewObject<UTestWall>(GetTransientPackage(), UTestWall::StaticClass(), TEXT("Fresh"), RF_NoFlags, Template, true);
		EXPECT_EQ(Fresh->Visits, 0) << "transient values come from the class when asked for";
	}

	TEST_F(ObjectConstruction, AnObjectOfTheSameNameAndClassIsRebuiltInPlace)
	{
		UTestWall* First = NewObject<UTestWall>(GetTransientPackage(), TEXT("Wall"));
		First->Number = 1;
		const TWeakObjectPtr<UTestWall> Weak = First;
		UTestWall* Second = NewObject<UTestWall>(GetTransientPackage(), TEXT("Wall"));
		EXPECT_EQ(First, Second);
		EXPECT_EQ(Second->Number, 7);
		EXPECT_FALSE(Second->bBeginDestroyed);
		EXPECT_EQ(Second->Skirting->GetOuter(), Second);
		EXPECT_EQ(Weak.Get(), Second);
		EXPECT_EQ(FindObject<UTestWall>(GetTransientPackage(), TEXT("Wall")), Second);
	}

	TEST_F(ObjectConstruction, ClassesBehaveAsTheirRecordsSay)
	{
		const UClass* Outer = UTestOuterWall::StaticClass();
		EXPECT_EQ(Outer->GetSuperClass(), UTestWall::StaticClass());
		EXPECT_TRUE(Outer->IsChildOf<UTestWall>());
		EXPECT_FALSE(UTestWall::StaticClass()->IsChildOf(Outer));
		EXPECT_FALSE(Outer->IsChildOf(nullptr));
		EXPECT_TRUE(UTestAbstract::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
		EXPECT_FALSE(Outer->HasAnyClassFlags(CLASS_Abstract));
		EXPECT_EQ(Utf8(Outer->GetClassPathName().ToString()), "/Script/TestObjects.TestOuterWall");
		EXPECT_EQ(Utf8(Outer->GetDisplayNameText().ToString()), "Outer Wall");
		EXPECT_EQ(UTestWall::StaticClass()->GetClass(), UClass::StaticClass());
	}

	TEST_F(ObjectConstruction, CastsFollowTheClassOfTheObject)
	{
		UObject* Wall = NewObject<UTestOuterWall>();
		const UObject* ConstWall = Wall;
		EXPECT_EQ(Cast<UTestWall>(Wall), Wall);
		EXPECT_EQ(Cast<UTestWall>(ConstWall), Wall);
		EXPECT_EQ(Cast<UTestSkirting>(Wall), nullptr);
		EXPECT_EQ(Cast<UTestWall>(static_cast<UObject*>(nullptr)), nullptr);
		EXPECT_EQ(CastChecked<UTestWall>(Wall), Wall);
		EXPECT_EQ(CastChecked<UTestWall>(static_cast<UObject*>(nullptr), ECastCheckedType::NullAllowed), nullptr);

		const TSubclassOf<UTestWall> Fits = UTestOuterWall::StaticClass();
		const TSubclassOf<UTestOuterWall> DoesNotFit = UTestWall::StaticClass();
		EXPECT_EQ(Fits.Get(), UTestOuterWall::StaticClass());
		EXPECT_EQ(DoesNotFit.Get(), nullptr);
	}

	TEST_F(ObjectConstruction, MisuseIsFatalAndLeavesNothingBehind)
	{
		UTestSkirting* Taken = NewObject<UTestSkirting>(GetTransientPackage(), TEXT("Taken"));
		struct FCase
		{
			const char* Behaviour;
			TFunction<void()> Act;
			const char* Message;
		};
		const FCase Cases[] = {
			{"a name of an object of another class", [] { NewObject<UTestKeeper>(GetTransientPackage(), TEXT("Taken")); }, "is there already, and of another class"},
			{"an abstract class", [] { NewObject<UTestAbstract>(); }, "NewObject of the abstract class TestAbstract"},
			{"no class", [] { NewObject<UObject>(GetTransientPackage(), nullptr); }, "NewObject without a class"},
			{"no outer", [] { NewObject<UTestKeeper>(nullptr); }, "without an outer"},
			{"a template of another class", [Taken] { NewObject<UTestKeeper>(GetTransientPackage(), TEXT("New"), RF_NoFlags, Taken); }, "cannot be the template"},
			{"a short package name", [] { CreatePackage(TEXT("Short")); }, "is no long package name"},
		};
		GetDefault<UTestKeeper>();
		const int32 Before = HostObjects::GetCounts().Editor;
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			EXPECT_THAT([&Case] { Case.Act(); }, testing::ThrowsMessage<FHostAssertionFailure>(testing::HasSubstr(Case.Message)));
		}
		EXPECT_EQ(HostObjects::GetCounts().Editor, Before);
	}
}
