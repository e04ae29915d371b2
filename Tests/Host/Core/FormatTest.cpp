// Copyright Velmorant. All Rights Reserved.

#include "Containers/UnrealString.h"
#include "TestPrinters.h"

TEST(Format, PrintsAsTheCLibraryDoes)
{
	const auto ExpectExactly = [](const FString& Actual, const TCHAR* Expected) {
		EXPECT_TRUE(Actual.Equals(Expected)) << "is " << testing::PrintToString(Actual) << ", should be " << testing::PrintToString(FString(Expected));
	};
	ExpectExactly(FString::Printf(TEXT("%d|%5d|%-5d|%05d|%+d"), 7, 7, 7, 7, 7), TEXT("7|    7|7    |00007|+7"));
	ExpectExactly(FString::Printf(TEXT("%lld %llu"), MIN_int64, MAX_uint64), TEXT("-9223372036854775808 18446744073709551615"));
	ExpectExactly(FString::Printf(TEXT("%u %x %X %08X"), MAX_uint32, -1, uint8(171), 0xBEEF), TEXT("4294967295 ffffffff AB 0000BEEF"));
	ExpectExactly(FString::Printf(TEXT("%zu"), sizeof(int64)), TEXT("8"));
	ExpectExactly(FString::Printf(TEXT("%f %.2f %5.1f %g"), 1.5, 2.345f, 0.25, 1e20), TEXT("1.500000 2.35   0.2 1e+20"));
	ExpectExactly(FString::Printf(TEXT("%s|%8s|%-8s|%.2s"), TEXT("Tür"), TEXT("Tür"), TEXT("Tür"), TEXT("Tür")), TEXT("Tür|     Tür|Tür     |Tü"));
	ExpectExactly(FString::Printf(TEXT("%hs %S"), "Ansi", "T\xC3\xBCr"), TEXT("Ansi Tür"));
	ExpectExactly(FString::Printf(TEXT("%c%c"), TEXT('Ñ'), 'x'), TEXT("Ñx"));
	ExpectExactly(FString::Printf(TEXT("%*d|%-*d|%.*f"), 4, 7, 4, 7, 1, 0.25), TEXT("   7|7   |0.2"));
	ExpectExactly(FString::Printf(TEXT("100%% %d"), true), TEXT("100% 1"));
	ExpectExactly(FString::Printf(TEXT("%s"), static_cast<const TCHAR*>(nullptr)), TEXT("(null)"));
	ExpectExactly(FString::Printf(TEXT("[%s]"), *FString()), TEXT("[]"));
}

TEST(Format, PrintsNumbersOfAnyLength)
{
	const FString Huge = FString::Printf(TEXT("%.10f"), MAX_dbl);
	EXPECT_EQ(Huge.Len(), 309 + 1 + 10);
	EXPECT_TRUE(Huge.StartsWith(TEXT("17976931348623157")));
	EXPECT_TRUE(Huge.EndsWith(TEXT(".0000000000")));
	EXPECT_EQ(FString::Printf(TEXT("%1000d"), 7), FString::ChrN(999, ' ') + TEXT("7"));
	const FString Long = FString::ChrN(20000, 'x');
	EXPECT_EQ(FString::Printf(TEXT("<%s>"), *Long), TEXT("<") + Long + TEXT(">"));
}

TEST(Format, ChecksLiteralsAtCompileTime)
{
	// What must not compile stands in Tests/Host/Refused; this must: every accepted pair of directive and type.
	enum EPlain
	{
		One = 1
	};
	const FString All = FString::Printf(TEXT("%d %i %u %d %d %d %lld %ld %zd %d"), int8(1), int16(2), uint16(3), true, One, TCHAR('a'), int64(4), 5l, PTRINT(6), uint32(7));
	EXPECT_EQ(All, TEXT("1 2 3 1 1 97 4 5 6 7"));
}

TEST(Format, SanitizedFloatsHaveNoNeedlessDigits)
{
	EXPECT_EQ(FString::SanitizeFloat(1.0), TEXT("1.0"));
	EXPECT_EQ(FString::SanitizeFloat(0.25), TEXT("0.25"));
	EXPECT_EQ(FString::SanitizeFloat(-0.0), TEXT("0.0"));
	EXPECT_EQ(FString::SanitizeFloat(3.0, 0), TEXT("3"));
	EXPECT_EQ(FString::SanitizeFloat(3.5, 3), TEXT("3.500"));
}
