// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNameComparisonTest, "Velmorant.Engine.Names.Comparison", VelmorantTests::Flags)

bool FVelmorantNameComparisonTest::RunTest(const FString& Parameters)
{
	const FName Name(TEXT("VelmorantHarborTower"));
	TestTrue(TEXT("case does not count"), Name == FName(TEXT("velmorantHARBORtower")));
	TestTrue(TEXT("a name equals text of other case"), Name == TEXT("velmorantharbortower"));
	TestFalse(TEXT("case counts when asked for"), Name.IsEqual(FName(TEXT("VELMORANTHARBORTOWER")), ENameCase::CaseSensitive));
	TestEqualSensitive(TEXT("each instance shows its own case"), *FName(TEXT("VELMORANTharbortower")).ToString(), TEXT("VELMORANTharbortower"));
	TestTrue(TEXT("hashes ignore case"), GetTypeHash(Name) == GetTypeHash(FName(TEXT("VELMORANTHARBORTOWER"))));
	TestTrue(TEXT("no text is no name"), FName(TEXT("")).IsNone());
	TestTrue(TEXT("the word None is no name, in any case"), FName(TEXT("nOnE")).IsNone());
	TestTrue(TEXT("NAME_None passes for valid"), FName(NAME_None).IsValid());
	TestTrue(TEXT("names that nobody made are not found"), FName(TEXT("VelmorantNobodyMadeThisOne"), FNAME_Find).IsNone());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNameNumbersTest, "Velmorant.Engine.Names.NumberSuffixes", VelmorantTests::Flags)

bool FVelmorantNameNumbersTest::RunTest(const FString& Parameters)
{
	const FName Base(TEXT("VelmorantUnit"));
	const TCHAR* const Numbered[] = {TEXT("VelmorantUnit_0"), TEXT("VelmorantUnit_1"), TEXT("VelmorantUnit_12")};
	for (const TCHAR* Text : Numbered)
	{
		const FName Name(Text);
		TestEqualSensitive(TEXT("the number is a part of its own"), *Name.GetPlainNameString(), TEXT("VelmorantUnit"));
		TestEqualSensitive(TEXT("printing loses nothing"), *Name.ToString(), Text);
		TestFalse(TEXT("the number counts"), Name == Base);
		TestTrue(TEXT("unless told not to"), Name.IsEqual(Base, ENameCase::IgnoreCase, false));
	}
	const TCHAR* const Whole[] = {TEXT("VelmorantUnit_01"), TEXT("VelmorantUnit_"), TEXT("VelmorantUnit_1a"), TEXT("VelmorantUnit_99999999999")};
	for (const TCHAR* Text : Whole)
	{
		TestEqualSensitive(TEXT("no number is split off"), *FName(Text).GetPlainNameString(), Text);
	}
	VelmorantTests::RecordBelief(*this, TEXT("plain part of the name _5"), FName(TEXT("_5")).GetPlainNameString());
	return true;
}

#endif
