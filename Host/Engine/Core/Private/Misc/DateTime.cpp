// Copyright Velmorant. All Rights Reserved.

#include "Misc/DateTime.h"

#include "HostClock.h"
#include "HostState.h"

#include <chrono>

namespace DateTime
{
	constexpr int64 UnixEpochDays = 719162; // from 0001-01-01 to 1970-01-01

	/** What the machine's clock showed when the editor's clock stood at 0. */
	struct FStartOfClock
	{
		FDateTime Time;

		FStartOfClock()
		{
			const double UnixSeconds = std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
			Time = FDateTime::FromUnixTimestamp(0) + FTimespan::FromSeconds(UnixSeconds - HostClock::Now());
		}
	};

	THostState<FStartOfClock> StartOfClock;

	/** Days from 0001-01-01 to the first of January. */
	int64 DaysBeforeYear(int32 Year)
	{
		const int64 Full = Year - 1;
		return Full * 365 + Full / 4 - Full / 100 + Full / 400;
	}
}

FDateTime FDateTime::UtcNow()
{
	return DateTime::StartOfClock->Time + FTimespan::FromSeconds(HostClock::Now());
}

FDateTime FDateTime::FromUnixTimestamp(int64 UnixTime)
{
	return FDateTime(DateTime::UnixEpochDays * ETimespan::TicksPerDay + UnixTime * ETimespan::TicksPerSecond);
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return Year % 4 == 0 && (Year % 100 != 0 || Year % 400 == 0);
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	check(Month >= 1 && Month <= 12);
	constexpr int32 Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
	return Month == 2 && IsLeapYear(Year) ? 29 : Days[Month - 1];
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	const int64 Days = Ticks / ETimespan::TicksPerDay;
	OutYear = static_cast<int32>(Days / 366) + 1; // never too late
	while (DateTime::DaysBeforeYear(OutYear + 1) <= Days)
	{
		++OutYear;
	}
	int32 Rest = static_cast<int32>(Days - DateTime::DaysBeforeYear(OutYear));
	OutMonth = 1;
	while (Rest >= DaysInMonth(OutYear, OutMonth))
	{
		Rest -= DaysInMonth(OutYear, OutMonth);
		++OutMonth;
	}
	OutDay = Rest + 1;
}

FString FDateTime::ToString() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return FString::Printf(TEXT("%04d.%02d.%02d-%02d.%02d.%02d"), Year, Month, Day, GetHour(), GetMinute(), GetSecond());
}
