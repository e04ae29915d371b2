// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestWall.h"
#include "UObject/GCObject.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectIterator.h"

namespace GarbageCollectionTest
{
	class GarbageCollection : public FObjectSystemTest
	{
	protected:
		static UTestWall* MakeRooted()
		{
			UTestWall* Wall = NewObject<UTestWall>();
			Wall->AddToRoot();
			return Wall;
		}
	};

	/** Keeps one object. */
	class FReferencer : public FGCObject
	{
	public:
		void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Object); }
		FString GetReferencerName() const override { return TEXT("FReferencer"); }

		TObjectPtr<UTestWall> Object;
	};

	TEST_F(GarbageCollection, WhatNobodyReferencesGoes)
	{
		const TWeakObjectPtr<UTestWall> Weak = NewObject<UTestWall>();
		const TWeakObjectPtr<UTestSkirting> Part = Weak->Skirting;
		const int32 Before = UTestWall::NumAlive;
		EXPECT_GT(HostObjects::CollectGarbage(), 1);
		EXPECT_EQ(UTestWall::NumAlive, Before - 1);
		EXPECT_FALSE(Weak.IsValid());
		EXPECT_TRUE(Weak.IsStale());
		EXPECT_FALSE(Part.IsValid());
		EXPECT_FALSE(TWeakObjectPtr<UTestWall>().IsStale());
		EXPECT_EQ(HostObjects::CollectGarbage(), 0);
	}

	TEST_F(GarbageCollection, ReferencesOfAllKindsKeep)
	{
		struct FCase
		{
			const char* Behaviour;
			void (*Refer)(UTestWall* From, UTestWall* To);
			bool bKept;
		};
		const FCase Cases[] = {
			{"a member", [](UTestWall* From, UTestWall* To) { From->Other = To; }, true},
			{"an element of an array", [](UTestWall* From, UTestWall* To) { From->Others = {nullptr, To}; }, true},
			{"a value of a map", [](UTestWall* From, UTestWall* To) { From->OthersByName.Add(TEXT("A"), To); }, true},
			{"a member of a struct", [](UTestWall* From, UTestWall* To) { From->Neighbour.Object = To; }, true},
			{"a struct inside its own kind",
				[](UTestWall* From, UTestWall* To) { From->Neighbour.Others.AddDefaulted_GetRef().Others.AddDefaulted_GetRef().Object = To; }, true},
			{"an inner object, which needs its outer", [](UTestWall* From, UTestWall* To) { From->Other = To->Skirting; }, true},
			{"a weak pointer does not", [](UTestWall* From, UTestWall* To) { From->Weak = To; }, false},
			{"a soft pointer does not", [](UTestWall* From, UTestWall* To) { From->Soft = To; }, false},
			{"being an inner object does not", [](UTestWall* From, UTestWall* To) { To->Rename(nullptr, From); }, false},
			{"a cycle without a root does not", [](UTestWall*, UTestWall* To) { To->Other = To; }, false},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			UTestWall* From = MakeRooted();
			const TWeakObjectPtr<UTestWall> To = NewObject<UTestWall>();
			Case.Refer(From, To.Get());
			HostObjects::CollectGarbage();
			EXPECT_EQ(To.IsValid(), Case.bKept);
			From->RemoveFromRoot();
			HostObjects::CollectGarbage();
			EXPECT_FALSE(To.IsValid());
		}
	}

	TEST_F(GarbageCollection, TheRootSetIsAFlag)
	{
		const TWeakObjectPtr<UTestWall> Wall = MakeRooted();
		Wall->AddToRoot();
		Wall->RemoveFromRoot();
		EXPECT_FALSE(Wall->IsRooted());
		HostObjects::CollectGarbage();
		EXPECT_FALSE(Wall.IsValid());
	}

	TEST_F(GarbageCollection, HoldersOutsideTheObjectSystemKeep)
	{
		TWeakObjectPtr<UTestWall> Wall = NewObject<UTestWall>();
		{
			const TStrongObjectPtr<UTestWall> Strong(Wall.Get());
			const TStrongObjectPtr<UTestWall> Second = Strong;
			HostObjects::CollectGarbage();
			EXPECT_EQ(Strong.Get(), Wall.Get());
			EXPECT_NE(Strong.Get(), nullptr);
			EXPECT_EQ(HostObjects::GetCounts().Rooted, 2) << "the transient package and this one";
		}
		{
			FReferencer Referencer;
			Referencer.Object = Wall.Get();
			HostObjects::CollectGarbage();
			EXPECT_TRUE(Wall.IsValid());
		}
		{
			UTestKeeper* Keeper = NewObject<UTestKeeper>();
			Keeper->AddToRoot();
			Keeper->Kept = Wall.Get();
			HostObjects::CollectGarbage();
			EXPECT_TRUE(Wall.IsValid());
			Keeper->RemoveFromRoot();
		}
		HostObjects::CollectGarbage();
		EXPECT_FALSE(Wall.IsValid());
	}

	TEST_F(GarbageCollection, AssetsStayUntilTheyAreGarbage)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Kept"));
		const TWeakObjectPtr<UTestWall> Asset = NewObject<UTestWall>(Package, TEXT("Kept"), RF_Public | RF_Standalone);
		HostObjects::CollectGarbage();
		ASSERT_TRUE(Asset.IsValid());
		EXPECT_TRUE(Asset->IsAsset());

		Asset->MarkAsGarbage();
		EXPECT_EQ(Asset.Get(), nullptr);
		EXPECT_NE(Asset.Get(true), nullptr);
		EXPECT_FALSE(IsValid(Asset.Get(true)));
		HostObjects::CollectGarbage();
		EXPECT_EQ(Asset.Get(true), nullptr);
		EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Kept")), nullptr) << "an empty package goes with it";
	}

	TEST_F(GarbageCollection, DyingObjectsStillSeeEachOther)
	{
		UTestWall* A = NewObject<UTestWall>();
		UTestWall* B = NewObject<UTestWall>();
		A->Other = B;
		B->Other = A;
		const int32 Before = UTestWall::NumAlive;
		HostObjects::CollectGarbage();
		EXPECT_EQ(UTestWall::NumAlive, Before - 2);
	}

	TEST_F(GarbageCollection, SlotsOfTheDeadDoNotMisleadWeakPointers)
	{
		const TWeakObjectPtr<UTestSkirting> Old = NewObject<UTestSkirting>();
		HostObjects::CollectGarbage();
		for (int32 Index = 0; Index < 10; ++Index)
		{
			NewObject<UTestSkirting>();
		}
		EXPECT_EQ(Old.Get(), nullptr);
		EXPECT_TRUE(Old == TWeakObjectPtr<UTestSkirting>()) << "both point to nothing";
	}

	TEST_F(GarbageCollection, IteratorsVisitTheLivingInOrderOfCreation)
	{
		NewObject<UTestSkirting>(GetTransientPackage(), TEXT("Early"));
		HostObjects::CollectGarbage();
		UTestSkirting* A = NewObject<UTestSkirting>(GetTransientPackage(), TEXT("A"));
		UTestSkirting* B = NewObject<UTestSkirting>(GetTransientPackage(), TEXT("B"));
		NewObject<UTestSkirting>(GetTransientPackage(), TEXT("Garbage"))->MarkAsGarbage();
		TArray<UTestSkirting*> Seen;
		for (TObjectIterator<UTestSkirting> It; It; ++It)
		{
			if (It->GetOuter() == GetTransientPackage())
			{
				Seen.Add(*It);
			}
		}
		EXPECT_EQ(Seen, (TArray<UTestSkirting*>{A, B}));
	}

	TEST_F(GarbageCollection, AnEditorLeavesNothingToTheNext)
	{
		GetMutableDefault<UTestWall>()->Number = 99;
		MakeRooted();
		const TWeakObjectPtr<UTestWall> Weak = MakeRooted();
		const TStrongObjectPtr<UTestWall> Strong(Weak.Get());
		HostObjects::DeriveClass(UTestWall::StaticClass(), TEXT("Derived"), GetTransientPackage())->GetDefaultObject();
		const HostObjects::FCounts Before = HostObjects::GetCounts();
		EXPECT_GT(Before.Editor, 4);

		HostObjects::TearDown();
		const HostObjects::FCounts After = HostObjects::GetCounts();
		EXPECT_EQ(After.Editor, 0);
		EXPECT_EQ(After.Defaults, 0);
		EXPECT_EQ(UTestWall::NumAlive, 0);
		EXPECT_FALSE(Weak.IsValid());
		EXPECT_EQ(Strong.Get(), nullptr);

		Restart();
		EXPECT_EQ(GetDefault<UTestWall>()->Number, 7);
		EXPECT_EQ(Utf8(NewObject<UTestWall>()->GetName()), "TestWall_0") << "numbering starts again";
		EXPECT_EQ(HostObjects::GetCounts().Rooted, 1);
	}

	TEST_F(GarbageCollection, PackagesGetDirtyOnlyWhereThereIsSomethingToSave)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Dirty"));
		UTestWall* Asset = NewObject<UTestWall>(Package, TEXT("Dirty"));
		TArray<FString> Changes;
		UPackage::PackageDirtyStateChangedEvent.AddLambda([&Changes](UPackage* Changed) { Changes.Add(Changed->GetName() + (Changed->IsDirty() ? TEXT("+") : TEXT("-"))); });
		EXPECT_FALSE(Package->IsDirty());
		EXPECT_TRUE(Asset->Skirting->MarkPackageDirty());
		EXPECT_TRUE(Asset->MarkPackageDirty());
		Package->SetDirtyFlag(false);
		Asset->Modify();
		EXPECT_EQ(Changes, (TArray<FString>{TEXT("/Game/Dirty+"), TEXT("/Game/Dirty-"), TEXT("/Game/Dirty+")}));

		EXPECT_FALSE(NewObject<UTestWall>()->MarkPackageDirty());
		EXPECT_FALSE(GetTransientPackage()->IsDirty());
		EXPECT_FALSE(GetMutableDefault<UTestWall>()->MarkPackageDirty());
		EXPECT_FALSE(UTestWall::StaticClass()->GetOutermost()->IsDirty());
	}
}
