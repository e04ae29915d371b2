// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestWall.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectHash.h"

namespace ObjectNamesTest
{
	class ObjectNames : public FObjectSystemTest
	{
	};

	TEST_F(ObjectNames, PathsTellPackageAssetAndInnerObjectsApart)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Tower/North"));
		UTestWall* Asset = NewObject<UTestWall>(Package, TEXT("North"));
		UTestWall* Inner = NewObject<UTestWall>(Asset, TEXT("Inner"));
		UTestWall* Innermost = NewObject<UTestWall>(Inner, TEXT("Innermost"));

		EXPECT_EQ(Utf8(Package->GetPathName()), "/Game/Tower/North");
		EXPECT_EQ(Utf8(Asset->GetPathName()), "/Game/Tower/North.North");
		EXPECT_EQ(Utf8(Inner->GetPathName()), "/Game/Tower/North.North:Inner");
		EXPECT_EQ(Utf8(Innermost->GetPathName()), "/Game/Tower/North.North:Inner.Innermost");
		EXPECT_EQ(Utf8(Innermost->GetPathName(Asset)), "Inner.Innermost");
		EXPECT_EQ(Utf8(Innermost->GetPathName(Package)), "North:Inner.Innermost");
		EXPECT_EQ(Utf8(Asset->GetFullName()), "TestWall /Game/Tower/North.North");
		EXPECT_EQ(Innermost->GetOutermost(), Package);
		EXPECT_EQ(Innermost->GetTypedOuter<UTestWall>(), Inner);
		EXPECT_EQ(Innermost->GetTypedOuter<UTestSkirting>(), nullptr);
		EXPECT_TRUE(Innermost->IsIn(Asset));
		EXPECT_FALSE(Asset->IsIn(Asset));
	}

	TEST_F(ObjectNames, ObjectsAreFoundByPathWhateverItsCase)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Tower/North"));
		UTestWall* Asset = NewObject<UTestWall>(Package, TEXT("North"));
		UTestWall* Inner = NewObject<UTestOuterWall>(Asset, TEXT("Inner"));

		struct FCase
		{
			const char* Behaviour;
			UObject* Outer;
			FString Path;
			UObject* Expected;
		};
		const FCase Cases[] = {
			{"full path", nullptr, TEXT("/Game/Tower/North.North"), Asset},
			{"other case", nullptr, TEXT("/game/TOWER/north.NORTH"), Asset},
			{"inner object", nullptr, TEXT("/Game/Tower/North.North:Inner"), Inner},
			{"path with its class", nullptr, TEXT("/Script/TestObjects.TestWall'/Game/Tower/North.North'"), Asset},
			{"plain name in an outer", Package, TEXT("North"), Asset},
			{"full path although an outer is given", Inner, TEXT("/Game/Tower/North.North"), Asset},
			{"wrong outer", Asset, TEXT("North"), nullptr},
			{"missing inner object", nullptr, TEXT("/Game/Tower/North.North:Missing"), nullptr},
			{"missing package", nullptr, TEXT("/Game/Tower/South.South"), nullptr},
			{"empty", nullptr, TEXT(""), nullptr},
			{"the default subobject", Asset, TEXT("Skirting"), nullptr}, // it is no wall
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			EXPECT_EQ(FindObject<UTestWall>(Case.Outer, *Case.Path), Case.Expected);
		}
		EXPECT_EQ(FindObject<UTestWall>(Asset, TEXT("Inner"), true), nullptr) << "exact class asked for";
		EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Tower/North")), Package);
	}

	TEST_F(ObjectNames, NativeTypesAreFoundByPathAndByPlainName)
	{
		EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/TestObjects.TestWall")), UTestWall::StaticClass());
		EXPECT_EQ(FindFirstObject<UScriptStruct>(TEXT("TestFinish")), FTestFinish::StaticStruct());
		EXPECT_EQ(UClass::TryFindTypeSlow<UEnum>(TEXT("ETestGloss")), StaticEnum<ETestGloss>());
	}

	TEST_F(ObjectNames, UnnamedObjectsAreNumberedByClassAndOuter)
	{
		UPackage* A = CreatePackage(TEXT("/Game/A"));
		UPackage* B = CreatePackage(TEXT("/Game/B"));
		NewObject<UTestWall>(A, TEXT("TestWall_1"));
		EXPECT_EQ(Utf8(NewObject<UTestWall>(A)->GetName()), "TestWall_0");
		EXPECT_EQ(Utf8(NewObject<UTestWall>(A)->GetName()), "TestWall_2") << "1 is taken";
		EXPECT_EQ(Utf8(NewObject<UTestOuterWall>(A)->GetName()), "TestOuterWall_0");
		EXPECT_EQ(Utf8(NewObject<UTestWall>(B)->GetName()), "TestWall_0");
		EXPECT_EQ(Utf8(MakeUniqueObjectName(A, UTestWall::StaticClass(), TEXT("Wall")).ToString()), "Wall_0");
	}

	TEST_F(ObjectNames, NumbersOfSeveralClassesGoOnSideBySideAndBeginAnewInANewOuter)
	{
		const TStrongObjectPtr<UPackage> Package(CreatePackage(TEXT("/Game/A")));
		for (int32 Round = 0; Round < 3; ++Round)
		{
			UTestWall* Outer = NewObject<UTestWall>(Package.Get()); // from the second round on in the place of one that is gone
			for (const char* Number : {"_0", "_1", "_2"})
			{
				EXPECT_EQ(Utf8(NewObject<UTestWall>(Outer)->GetName()), std::string("TestWall") + Number);
				EXPECT_EQ(Utf8(NewObject<UTestOuterWall>(Outer)->GetName()), std::string("TestOuterWall") + Number);
				EXPECT_EQ(Utf8(NewObject<UTestSkirting>(Outer)->GetName()), std::string("TestSkirting") + Number);
			}
			HostObjects::CollectGarbage();
		}
	}

	TEST_F(ObjectNames, RenamingMovesAnObjectWithAllThatLiesInIt)
	{
		UPackage* From = CreatePackage(TEXT("/Game/From"));
		UPackage* To = CreatePackage(TEXT("/Game/To"));
		UTestWall* Wall = NewObject<UTestWall>(From, TEXT("Wall"));
		NewObject<UTestWall>(To, TEXT("Taken"));

		EXPECT_FALSE(Wall->Rename(TEXT("Taken"), To, REN_Test));
		EXPECT_TRUE(Wall->Rename(TEXT("Moved"), To));
		EXPECT_EQ(Utf8(Wall->Skirting->GetPathName()), "/Game/To.Moved:Skirting");
		EXPECT_EQ(FindObject<UTestWall>(nullptr, TEXT("/Game/From.Wall")), nullptr);
		EXPECT_EQ(FindObject<UTestWall>(nullptr, TEXT("/Game/To.Moved")), Wall);
		EXPECT_TRUE(From->IsDirty());
		EXPECT_TRUE(To->IsDirty());

		EXPECT_TRUE(Wall->Rename(TEXT("moved")));
		EXPECT_EQ(Utf8(Wall->GetName()), "moved") << "another case is another name to people";
	}

	TEST_F(ObjectNames, InnerObjectsAreListedInOrder)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/List"));
		UTestWall* A = NewObject<UTestWall>(Package, TEXT("A"));
		UTestWall* B = NewObject<UTestWall>(Package, TEXT("B"));
		UTestWall* C = NewObject<UTestWall>(Package, TEXT("C"));
		TArray<UObject*> Direct;
		GetObjectsWithOuter(Package, Direct, false);
		EXPECT_EQ(Direct, (TArray<UObject*>{A, B, C}));

		B->MarkAsGarbage();
		A->Rename(nullptr, GetTransientPackage());
		A->Rename(nullptr, Package);
		TArray<UObject*> All;
		GetObjectsWithOuter(Package, All);
		EXPECT_EQ(All, (TArray<UObject*>{B->Skirting, C, C->Skirting, A, A->Skirting})) << "only B itself is garbage";
	}

	TEST_F(ObjectNames, ThousandsOfObjectsInOneOuterStayDistinct)
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Many"));
		for (int32 Index = 0; Index < 20000; ++Index)
		{
			NewObject<UTestSkirting>(Package);
		}
		UTestSkirting* Found = FindObject<UTestSkirting>(Package, TEXT("TestSkirting_19999"));
		ASSERT_NE(Found, nullptr);
		EXPECT_EQ(FindObject<UTestSkirting>(Package, TEXT("TestSkirting_20000")), nullptr);
		EXPECT_EQ(StaticFindObjectFast(nullptr, Package, Found->GetFName()), Found);
	}
}
