// Copyright Velmorant. All Rights Reserved.

#include "AssetDefinition.h"
#include "CoreMinimal.h"
#include "Internationalization/Text.h"
#include "Misc/AssetCategoryPath.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

#define LOCTEXT_NAMESPACE "VelmorantTests"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTextKeysTest, "Velmorant.Engine.Texts.SharedKeys", VelmorantTests::Flags)

bool FVelmorantTextKeysTest::RunTest(const FString&)
{
	// The menu's version entry has two texts under one key.
	const FText Plain = LOCTEXT("Shared", "Velmorant Version");
	const FText Numbered = LOCTEXT("Shared", "Velmorant Version: {0}");
	TestEqualSensitive(TEXT("the first shows its own source"), *Plain.ToString(), TEXT("Velmorant Version"));
	TestEqualSensitive(TEXT("so does the second"), *Numbered.ToString(), TEXT("Velmorant Version: {0}"));
	TestEqualSensitive(TEXT("asked for again, too"), *LOCTEXT("Shared", "Velmorant Version").ToString(), TEXT("Velmorant Version"));
	TestEqualSensitive(TEXT("formats fill their places"), *FText::Format(Numbered, FText::FromString(TEXT("3.1"))).ToString(), TEXT("Velmorant Version: 3.1"));
	VelmorantTests::RecordBelief(*this, TEXT("IdenticalTo for one key with two sources"), Plain.IdenticalTo(Numbered));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTextFormatTest, "Velmorant.Engine.Texts.Formats", VelmorantTests::Flags)

bool FVelmorantTextFormatTest::RunTest(const FString&)
{
	TestEqualSensitive(TEXT("a place without argument stays"), *FText::Format(INVTEXT("{0} and {1}"), INVTEXT("a")).ToString(), TEXT("a and {1}"));
	TestEqualSensitive(TEXT("a place may be filled twice"), *FText::Format(INVTEXT("{0}{0}"), INVTEXT("a")).ToString(), TEXT("aa"));
	FFormatNamedArguments Named;
	Named.Add(TEXT("Unit"), INVTEXT("A 12"));
	TestEqualSensitive(TEXT("names find their places, whatever their case"), *FText::Format(INVTEXT("Unit {unit}"), Named).ToString(), TEXT("Unit A 12"));
	TestTrue(TEXT("texts compare by what they show"), INVTEXT("Tower").EqualTo(FText::FromString(TEXT("Tower"))));
	TestFalse(TEXT("case counts for texts"), INVTEXT("Tower").EqualTo(INVTEXT("tower")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTextCategoryTest, "Velmorant.Engine.Texts.AssetCategories", VelmorantTests::Flags)

bool FVelmorantTextCategoryTest::RunTest(const FString&)
{
	// The module's definitions stand in five name spaces; the menu must have one category of them.
	const FAssetCategoryPath First(NSLOCTEXT("VelmorantTestsA", "Cat", "VelmorantAsset"), NSLOCTEXT("VelmorantTestsA", "Sub", "Configurator"));
	const FAssetCategoryPath Plain(NSLOCTEXT("VelmorantTestsB", "Other", "VelmorantAsset"));
	const FAssetCategoryPath Second(Plain, NSLOCTEXT("VelmorantTestsB", "Sub", "UI"));
	TestTrue(TEXT("categories are told apart by their source text alone"), First.GetCategory() == Second.GetCategory());
	TestFalse(TEXT("and so are those below"), First.GetSubCategory() == Second.GetSubCategory());
	TestTrue(TEXT("of which there may be none"), Second.HasSubCategory() && !Plain.HasSubCategory());
	return true;
}

#undef LOCTEXT_NAMESPACE

#endif
