// Copyright Velmorant. All Rights Reserved.

#include "Misc/DateTime.h"

#include "Misc/Guid.h"
#include "TestPrinters.h"

TEST(DateTime, EveryDayOfFourCenturiesIsItself)
{
	FDateTime Day = FDateTime::FromUnixTimestamp(946684800); // the first of January 2000
	int32 Year = 2000, Month = 1, DayOfMonth = 1;
	while (Year < 2400)
	{
		int32 GotYear = 0, GotMonth = 0, GotDay = 0;
		Day.GetDate(GotYear, GotMonth, GotDay);
		ASSERT_TRUE(GotYear == Year && GotMonth == Month && GotDay == DayOfMonth) << Year << "-" << Month << "-" << DayOfMonth;
		Day += FTimespan::FromSeconds(24 * 60 * 60);
		if (++DayOfMonth > FDateTime::DaysInMonth(Year, Month))
		{
			DayOfMonth = 1;
			Month = Month % 12 + 1;
			Year += Month == 1 ? 1 : 0;
		}
	}
	EXPECT_EQ(Day.GetTicks() / ETimespan::TicksPerSecond - FDateTime::FromUnixTimestamp(0).GetTicks() / ETimespan::TicksPerSecond, 13569465600) << "the first of January 2400";
}

TEST(DateTime, IsWrittenAsTheEngineWritesIt)
{
	EXPECT_EQ(FDateTime::FromUnixTimestamp(1709247909).ToString(), TEXT("2024.02.29-23.05.09"));
}

TEST(Guid, IsWrittenInDigitsAndNewOnesDiffer)
{
	EXPECT_EQ(FGuid(0x01234567, 0x89abcdef, 0xfedcba98, 0x76543210).ToString(), TEXT("0123456789ABCDEFFEDCBA9876543210"));
	EXPECT_TRUE(FGuid::NewGuid().IsValid());
	EXPECT_FALSE(FGuid::NewGuid() == FGuid::NewGuid());
}
