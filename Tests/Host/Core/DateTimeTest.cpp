// Copyright Velmorant. All Rights Reserved.

#include "Misc/DateTime.h"

#include "HostAssertions.h"
#include "Misc/Guid.h"
#include "TestPrinters.h"

TEST(DateTime, EveryDayOfFourCenturiesIsItself)
{
	FDateTime Day(1999, 12, 31);
	int32 Year = 2000, Month = 1, DayOfMonth = 1;
	while (Year < 2400)
	{
		Day += FTimespan::FromSeconds(24 * 60 * 60);
		int32 GotYear = 0, GotMonth = 0, GotDay = 0;
		Day.GetDate(GotYear, GotMonth, GotDay);
		ASSERT_TRUE(GotYear == Year && GotMonth == Month && GotDay == DayOfMonth) << Year << "-" << Month << "-" << DayOfMonth;
		ASSERT_EQ(FDateTime(Year, Month, DayOfMonth).GetTicks(), Day.GetTicks());
		if (++DayOfMonth > FDateTime::DaysInMonth(Year, Month))
		{
			DayOfMonth = 1;
			Month = Month % 12 + 1;
			Year += Month == 1 ? 1 : 0;
		}
	}
	EXPECT_THROW(FDateTime(2023, 2, 29), FHostAssertionFailure);
}

TEST(DateTime, TextFormsCanBeReadBack)
{
	const FDateTime Time(2024, 2, 29, 23, 5, 9, 42);
	EXPECT_EQ(Time.ToString(), TEXT("2024.02.29-23.05.09"));
	FDateTime Read;
	EXPECT_TRUE(FDateTime::ParseIso8601(TEXT("2024-02-29T23:05:09.042Z"), Read));
	EXPECT_TRUE(Read == Time);
	EXPECT_TRUE(FDateTime::ParseIso8601(TEXT("2024-02-29"), Read));
	EXPECT_TRUE(Read == FDateTime(2024, 2, 29));
	for (const TCHAR* Bad : {TEXT("2023-02-29"), TEXT("2024-2-29"), TEXT("2024-02-29T25:00:00"), TEXT("2024-02-29x"), TEXT("")})
	{
		EXPECT_FALSE(FDateTime::ParseIso8601(Bad, Read)) << TCHAR_TO_UTF8(Bad);
	}
}

TEST(Guid, TextFormsCanBeReadBack)
{
	const FGuid Guid(0x01234567, 0x89abcdef, 0xfedcba98, 0x76543210);
	EXPECT_EQ(Guid.ToString(), TEXT("0123456789ABCDEFFEDCBA9876543210"));
	EXPECT_EQ(Guid.ToString(EGuidFormats::DigitsWithHyphens), TEXT("01234567-89AB-CDEF-FEDC-BA9876543210"));
	for (const EGuidFormats Format : {EGuidFormats::Digits, EGuidFormats::DigitsWithHyphensLower, EGuidFormats::DigitsWithHyphensInBraces})
	{
		FGuid Read;
		EXPECT_TRUE(FGuid::Parse(Guid.ToString(Format), Read));
		EXPECT_TRUE(Read == Guid);
	}
	FGuid Damaged;
	EXPECT_FALSE(FGuid::Parse(TEXT("0123-456789ABCDEFFEDCBA9876543210"), Damaged));
	EXPECT_TRUE(FGuid::NewGuid().IsValid());
	EXPECT_FALSE(FGuid::NewGuid() == FGuid::NewGuid());
}
