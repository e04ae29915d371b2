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

	/** Exactly NumDigits digits; moves past them. */
	bool ReadDigits(const TCHAR*& At, int32 NumDigits, int32& Out)
	{
		Out = 0;
		for (; NumDigits > 0; --NumDigits, ++At)
		{
			if (!FChar::IsDigit(*At))
			{
				return false;
			}
			Out = Out * 10 + FChar::ConvertCharDigitToInt(*At);
		}
		return true;
	}

	bool Read(const TCHAR*& At, TCHAR Char)
	{
		At += *At == Char ? 1 : 0;
		return At[-1] == Char;
	}
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	checkf(Validate(Year, Month, Day, Hour, Minute, Second, Millisecond), TEXT("There is no %04d-%02d-%02d %02d:%02d:%02d.%03d"), Year, Month, Day, Hour, Minute, Second, Millisecond);
	int64 Days = DateTime::DaysBeforeYear(Year) + Day - 1;
	for (int32 Before = 1; Before < Month; ++Before)
	{
		Days += DaysInMonth(Year, Before);
	}
	Ticks = Days * ETimespan::TicksPerDay + Hour * ETimespan::TicksPerHour + Minute * ETimespan::TicksPerMinute + Second * ETimespan::TicksPerSecond + Millisecond * ETimespan::TicksPerMillisecond;
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

bool FDateTime::Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	return Year >= 1 && Year <= 9999 && Month >= 1 && Month <= 12 && Day >= 1 && Day <= DaysInMonth(Year, Month) && Hour >= 0 && Hour <= 23 && Minute >= 0 && Minute <= 59 && Second >= 0 && Second <= 59 && Millisecond >= 0 && Millisecond <= 999;
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

bool FDateTime::ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime)
{
	const TCHAR* At = DateTimeString;
	int32 Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0, Second = 0, Millisecond = 0;
	using namespace DateTime;
	if (!ReadDigits(At, 4, Year) || !Read(At, '-') || !ReadDigits(At, 2, Month) || !Read(At, '-') || !ReadDigits(At, 2, Day))
	{
		return false;
	}
	if (*At == 'T' || *At == ' ')
	{
		++At;
		if (!ReadDigits(At, 2, Hour) || !Read(At, ':') || !ReadDigits(At, 2, Minute) || !Read(At, ':') || !ReadDigits(At, 2, Second))
		{
			return false;
		}
		if (*At == '.')
		{
			++At;
			if (!ReadDigits(At, 3, Millisecond))
			{
				return false;
			}
		}
	}
	At += *At == 'Z' ? 1 : 0;
	if (*At || !Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		return false;
	}
	OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond);
	return true;
}
