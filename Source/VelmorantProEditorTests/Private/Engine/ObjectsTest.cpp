// Copyright Velmorant. All Rights Reserved.

#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"
#include "Support/TestPackage.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantConfiguratorDataAsset.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantObjectNamesTest, "Velmorant.Engine.Objects.Paths", VelmorantTests::Flags)

bool FVelmorantObjectNamesTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const UObject* Asset = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Data"));
	const FString Package = Content.GetPackageName(TEXT("Data"));
	TestEqualSensitive(TEXT("an asset's path"), *Asset->GetPathName(), *(Package + TEXT(".Data")));
	TestEqualSensitive(TEXT("its full name"), *Asset->GetFullName(), *(TEXT("VelmorantConfiguratorDataAsset ") + Package + TEXT(".Data")));
	TestSamePtr<const UObject>(TEXT("it is found by its path, whatever the case"), FindObject<UObject>(nullptr, *Asset->GetPathName().ToUpper()), Asset);
	TestEqualSensitive(TEXT("classes have no prefix"), *UVelmorantConfiguratorDataAsset::StaticClass()->GetPathName(), TEXT("/Script/VelmorantPro.VelmorantConfiguratorDataAsset"));
	const UObject* First = NewObject<UVelmorantTestListener>();
	const UObject* Second = NewObject<UVelmorantTestListener>();
	TestTrue(TEXT("names that are made up differ"), First->GetFName() != Second->GetFName());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCollectionTest, "Velmorant.Engine.Objects.Collection", VelmorantTests::Flags)

bool FVelmorantCollectionTest::RunTest(const FString&)
{
	const TWeakObjectPtr<UVelmorantTestListener> Lost(NewObject<UVelmorantTestListener>());
	const TStrongObjectPtr<UVelmorantTestListener> Held(NewObject<UVelmorantTestListener>());
	TestTrue(TEXT("a weak pointer knows its object"), Lost.IsValid());
	Held->MarkAsGarbage();
	TestFalse(TEXT("what is garbage is not valid, although it is held"), IsValid(Held.Get()));
	TestFalse(TEXT("a weak pointer to it reads as null"), TWeakObjectPtr<UVelmorantTestListener>(Held.Get()).IsValid());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	TestFalse(TEXT("nobody holds it: it is gone"), Lost.IsValid());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMapOrderTest, "Velmorant.Engine.Containers.Order", VelmorantTests::Flags)

bool FVelmorantMapOrderTest::RunTest(const FString&)
{
	// Lists that the module shows come out of maps and sets: in the order of adding, as long as nothing is removed.
	TMap<FName, int32> Map;
	TSet<FString> Set;
	for (const TCHAR* Name : {TEXT("Oak"), TEXT("Ash"), TEXT("Birch"), TEXT("Oak")})
	{
		Map.FindOrAdd(Name) += 1;
		Set.Add(Name);
	}
	FString Order;
	for (const TPair<FName, int32>& Pair : Map)
	{
		Order += Pair.Key.ToString() + FString::FromInt(Pair.Value) + TEXT(" ");
	}
	TestEqualSensitive(TEXT("a map"), *Order, TEXT("Oak2 Ash1 Birch1 "));
	TestEqualSensitive(TEXT("a set"), *FString::Join(Set.Array(), TEXT(" ")), TEXT("Oak Ash Birch"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTickerTest, "Velmorant.Engine.Time.Ticker", VelmorantTests::Flags)

bool FVelmorantTickerTest::RunTest(const FString&)
{
	const TSharedRef<int32> NumTicks = MakeShared<int32>(0);
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([NumTicks](float) {
		++*NumTicks;
		return *NumTicks < 2;
	}));
	TestEqual(TEXT("nothing ticks before the next frame"), *NumTicks, 0);
	ADD_LATENT_AUTOMATION_COMMAND(FDelayedFunctionLatentCommand([this, NumTicks] { TestEqual(TEXT("a ticker ticks until it says that it is enough"), *NumTicks, 2); }, 0.5f));
	return true;
}

#endif
