// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestWall.h"
#include "UObject/SoftObjectPtr.h"

namespace SoftPathTest
{
	class SoftPath : public FObjectSystemTest
	{
	protected:
		/** Makes packages below /Game/Disk/ loadable, and counts the loads. */
		void InstallLoader()
		{
			HostObjects::SetPackageLoader([this](const FString& Name) -> UPackage* {
				++NumLoads;
				if (!Name.StartsWith(TEXT("/Game/Disk/")))
				{
					return nullptr;
				}
				UPackage* Package = CreatePackage(*Name);
				NewObject<UTestWall>(Package, FName(*Name.RightChop(11)), RF_Public | RF_Standalone);
				Package->MarkAsFullyLoaded();
				return Package;
			});
		}

		int32 NumLoads = 0;
	};

	TEST_F(SoftPath, TextsAreTakenApart)
	{
		struct FCase
		{
			const TCHAR* Text;
			const char* Printed;
		};
		const FCase Cases[] = {
			{TEXT("/Game/A.B"), "/Game/A.B"},
			{TEXT("/Game/A.B:C.D"), "/Game/A.B:C.D"},
			{TEXT("/Game/A"), "/Game/A"},
			{TEXT("/Script/TestObjects.TestWall'/Game/A.B'"), "/Game/A.B"},
			{TEXT("None"), ""},
			{TEXT(""), ""},
			{TEXT("Short"), ""},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Utf8(FString(Case.Text)));
			const FSoftObjectPath Path = FString(Case.Text);
			EXPECT_EQ(Utf8(Path.ToString()), Case.Printed);
			EXPECT_EQ(Path.IsNull(), *Case.Printed == 0);
		}
		EXPECT_EQ(CountLogLines(TEXT("Short asset name")), 1);
		EXPECT_EQ(FSoftObjectPath(TEXT("/Game/a.b")), FSoftObjectPath(TEXT("/Game/A.B")));
	}

	TEST_F(SoftPath, LoadingAsksTheStorageOnce)
	{
		InstallLoader();
		UObject* Wall = FSoftObjectPath(TEXT("/Game/Disk/B.B")).TryLoad();
		ASSERT_NE(Wall, nullptr);
		EXPECT_EQ(LoadObject<UTestWall>(nullptr, TEXT("/Game/Disk/B")), Wall) << "the asset's name may be left out";
		EXPECT_EQ(LoadObject<UTestWall>(nullptr, TEXT("/Script/TestObjects.TestWall'/Game/Disk/B.B'")), Wall);
		EXPECT_EQ(LoadObject<UTestSkirting>(nullptr, TEXT("/Game/Disk/B.B:Skirting")), CastChecked<UTestWall>(Wall)->Skirting);
		EXPECT_EQ(NumLoads, 1);

		EXPECT_EQ(LoadObject<UTestSkirting>(nullptr, TEXT("/Game/Disk/B.B")), nullptr) << "of another class";
		EXPECT_EQ(LoadObject<UTestWall>(nullptr, TEXT("/Game/Missing")), nullptr);
		EXPECT_EQ(CountLogLines(TEXT("Failed to find object 'TestWall")), 1);
	}

	TEST_F(SoftPath, SoftPointersFollowTheirObject)
	{
		InstallLoader();
		TSoftObjectPtr<UTestWall> Soft{FSoftObjectPath(TEXT("/Game/Disk/C.C"))};
		EXPECT_EQ(Soft.Get(), nullptr);
		UTestWall* Wall = Cast<UTestWall>(FSoftObjectPath(Soft.ToString()).TryLoad());
		ASSERT_NE(Wall, nullptr);
		EXPECT_EQ(Soft.Get(), Wall);
		Wall->MarkAsGarbage();
		EXPECT_EQ(Soft.Get(), nullptr);
		EXPECT_FALSE(Soft.IsNull());

		const TSoftClassPtr<UObject> Class = UTestWall::StaticClass();
		EXPECT_EQ(Class.LoadSynchronous(), UTestWall::StaticClass());
	}

	TEST_F(SoftPath, TopLevelPathsNeedAPackage)
	{
		EXPECT_EQ(Utf8(FTopLevelAssetPath(TEXT("/Script/A.B")).ToString()), "/Script/A.B");
		EXPECT_TRUE(FTopLevelAssetPath(TEXT("B")).IsNull());
		EXPECT_TRUE(FTopLevelAssetPath(TEXT("/A.B:C")).IsNull());
		EXPECT_EQ(FTopLevelAssetPath(UTestWall::StaticClass()), UTestWall::StaticClass()->GetClassPathName());
		EXPECT_TRUE(FTopLevelAssetPath(NewObject<UTestWall>()->Skirting.Get()).IsNull()) << "lies deeper";
	}
}
