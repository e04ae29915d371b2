// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "FontIconData.h"
#include "Support/Beliefs.h"
#include "Support/QuietTest.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"
#include "Support/TestPackage.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantConfiguratorTypes.h"

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

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDeletedAssetTest, "Velmorant.Engine.Objects.DeletedAssets", VelmorantTests::Flags)

bool FVelmorantDeletedAssetTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const TStrongObjectPtr<UVelmorantTestListener> Holder(NewObject<UVelmorantTestListener>());
	UObject* Asset = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Data"));
	const FSoftObjectPath Path(Asset);
	Holder->Friend = Asset;
	FAssetRegistryModule::AssetDeleted(Asset);
	Asset->ClearFlags(RF_Public | RF_Standalone);
	Asset->MarkAsGarbage();
	Asset = nullptr;
	TestFalse(TEXT("the registry no longer knows it"), IAssetRegistry::GetChecked().GetAssetByObjectPath(Path).IsValid());
	VelmorantTests::RecordBelief(*this, TEXT("a soft path leads to garbage until a collection"), Path.ResolveObject() != nullptr);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	VelmorantTests::RecordBelief(*this, TEXT("what a property that referred to garbage has after a collection"), Holder->Friend ? TEXT("the object") : TEXT("nothing"));
	Holder->Friend = nullptr;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	TestNull(TEXT("once it is gone, a soft path leads nowhere"), Path.ResolveObject());
	TestFalse(TEXT("and stays as it is"), Path.IsNull());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantStructsTest, "Velmorant.Engine.Objects.Structs", VelmorantTests::Flags)

bool FVelmorantStructsTest::RunTest(const FString&)
{
	// A refresh tells by these two whether the service's data has changed.
	const UScriptStruct& Struct = *FVelmorantConfigUnit::StaticStruct();
	FVelmorantConfigUnit Left;
	Left.Rooms.AddDefaulted_GetRef().Name = TEXT("Hall");
	FVelmorantConfigUnit Right = Left;
	const auto Export = [&Struct](const FVelmorantConfigUnit& Unit) {
		FString Text;
		Struct.ExportText(Text, &Unit, nullptr, nullptr, PPF_None, nullptr);
		return Text;
	};
	TestTrue(TEXT("a copy is the same"), Struct.CompareScriptStruct(&Left, &Right, PPF_None) && Export(Left).Equals(Export(Right)));
	Right.Rooms[0].Name = TEXT("HALL");
	VelmorantTests::RecordBelief(*this, TEXT("structs compare the case of their texts"), !Struct.CompareScriptStruct(&Left, &Right, PPF_None));
	TestFalse(TEXT("their texts tell another letter case"), Export(Left).Equals(Export(Right)));
	Right = Left;
	Right.Rooms[0].Groups.AddDefaulted();
	TestFalse(TEXT("an element more, however deep, is a difference"), Struct.CompareScriptStruct(&Left, &Right, PPF_None));
	return true;
}

IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(FVelmorantDataTableTest, FVelmorantQuietTest, "Velmorant.Engine.Objects.DataTables", VelmorantTests::Flags)

bool FVelmorantDataTableTest::RunTest(const FString&)
{
	UDataTable* Table = NewObject<UDataTable>();
	Table->RowStruct = FFontIconRow::StaticStruct();
	for (const TCHAR* Name : {TEXT("boat"), TEXT("anchor")})
	{
		FFontIconRow Row;
		Row.Character = Name;
		Table->AddRow(Name, Row);
	}
	TestTrue(TEXT("rows come in the order in which they were added"), Table->GetRowNames() == TArray<FName>{TEXT("boat"), TEXT("anchor")});
	const FFontIconRow* Row = Table->FindRow<FFontIconRow>("ANCHOR", TEXT("Velmorant test"));
	TestTrue(TEXT("and are found whatever the case of their names"), Row && Row->Character.Equals(TEXT("anchor")));
	TestNull(TEXT("one that is not there is null"), Table->FindRow<FFontIconRow>("door", TEXT("Velmorant test")));
	TestNull(TEXT("so is one of another struct"), Table->FindRow<FVelmorantTestRow>("boat", TEXT("Velmorant test")));
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
