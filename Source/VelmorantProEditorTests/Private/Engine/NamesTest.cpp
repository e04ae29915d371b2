// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNameComparisonTest, "Velmorant.Engine.Names.Comparison", VelmorantTests::Flags)

bool FVelmorantNameComparisonTest::RunTest(const FString&)
{
	const FName Name(TEXT("VelmorantHarborTower"));
	TestTrue(TEXT("case does not count"), Name == FName(TEXT("velmorantHARBORtower")));
	TestTrue(TEXT("a name equals text of other case"), Name == TEXT("velmorantharbortower"));
	TestFalse(TEXT("case counts when asked for"), Name.IsEqual(FName(TEXT("VELMORANTHARBORTOWER")), ENameCase::CaseSensitive));
	TestEqualSensitive(TEXT("each instance shows its own case"), *FName(TEXT("VELMORANTharbortower")).ToString(), TEXT("VELMORANTharbortower"));
	TestTrue(TEXT("hashes ignore case"), GetTypeHash(Name) == GetTypeHash(FName(TEXT("VELMORANTHARBORTOWER"))));
	VelmorantTests::RecordBelief(*this, TEXT("names ignore case beyond ASCII"), FName(TEXT("VelmorantT\u00DCR")) == FName(TEXT("VelmorantT\u00FCr")));
	TestTrue(TEXT("no text is no name"), FName(TEXT("")).IsNone() && FName(static_cast<const TCHAR*>(nullptr)).IsNone());
	TestTrue(TEXT("the word None is no name, in any case"), FName(TEXT("nOnE")).IsNone());
	TestFalse(TEXT("with a number it is one"), FName(TEXT("None_1")).IsNone());
	TestTrue(TEXT("no name reads, and compares, as that word"), FName().ToString().Equals(TEXT("None")) && FName() == TEXT("none"));
	TestTrue(TEXT("NAME_None passes for valid"), FName(NAME_None).IsValid());
	TestTrue(TEXT("names that nobody made are not found"), FName(TEXT("VelmorantNobodyMadeThisOne"), FNAME_Find).IsNone());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantNameNumbersTest, "Velmorant.Engine.Names.NumberSuffixes", VelmorantTests::Flags)

bool FVelmorantNameNumbersTest::RunTest(const FString&)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Plain;
		int32 Number; // one more than the text says; 0 for none
	};
	const FCase Cases[] = {
		{TEXT("VelmorantUnit_1"), TEXT("VelmorantUnit"), 2},
		{TEXT("VelmorantUnit_0"), TEXT("VelmorantUnit"), 1},
		{TEXT("VelmorantUnit_01"), TEXT("VelmorantUnit_01"), 0},
		{TEXT("VelmorantUnit_"), TEXT("VelmorantUnit_"), 0},
		{TEXT("VelmorantUnit5"), TEXT("VelmorantUnit5"), 0},
		{TEXT("VelmorantUnit_1a"), TEXT("VelmorantUnit_1a"), 0},
		{TEXT("VelmorantUnit_1_2"), TEXT("VelmorantUnit_1"), 3},
		{TEXT("VelmorantUnit_99999999999"), TEXT("VelmorantUnit_99999999999"), 0},
	};
	for (const FCase& Case : Cases)
	{
		const FName Name(Case.Text);
		TestEqualSensitive(*FString::Printf(TEXT("%s without its number"), Case.Text), *Name.GetPlainNameString(), Case.Plain);
		TestEqual(*FString::Printf(TEXT("number of %s"), Case.Text), Name.GetNumber(), Case.Number);
		TestEqualSensitive(TEXT("printing loses nothing"), *Name.ToString(), Case.Text);
	}
	const FName Base(TEXT("VelmorantUnit"));
	const FName Numbered(TEXT("velmorantUNIT_1"));
	TestTrue(TEXT("case does not count before a number"), Numbered == FName(TEXT("VelmorantUnit_1")));
	TestFalse(TEXT("the number counts"), Numbered == Base);
	TestTrue(TEXT("unless told not to"), Numbered.IsEqual(Base, ENameCase::IgnoreCase, false));
	VelmorantTests::RecordBelief(*this, TEXT("plain part of the name _5"), FName(TEXT("_5")).GetPlainNameString());
	return true;
}

#endif
