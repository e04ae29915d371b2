// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/Timespan.h"
#include "Templates/TypeHash.h"

#include <compare>

/** A date and a time of day, in ticks of 100 nanoseconds since the first of January of the year 1. Knows no time zones. */
struct FDateTime
{
	constexpr FDateTime() = default;
	explicit constexpr FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	/** Host: the machine's time when the editor first asks, and from there on the host's clock, which tests step. */
	static FDateTime UtcNow();
	/** Host: the local time zone is UTC, so that files and tests are the same everywhere. */
	static FDateTime Now() { return UtcNow(); }
	static FDateTime FromUnixTimestamp(int64 UnixTime);

	static bool IsLeapYear(int32 Year);
	static int32 DaysInMonth(int32 Year, int32 Month);

	constexpr int64 GetTicks() const { return Ticks; }
	void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;
	constexpr int32 GetHour() const { return static_cast<int32>(Ticks / ETimespan::TicksPerHour % 24); }
	constexpr int32 GetMinute() const { return static_cast<int32>(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSecond() const { return static_cast<int32>(Ticks / ETimespan::TicksPerSecond % 60); }

	constexpr FDateTime operator+(const FTimespan& Timespan) const { return FDateTime(Ticks + Timespan.GetTicks()); }
	constexpr FDateTime operator-(const FTimespan& Timespan) const { return FDateTime(Ticks - Timespan.GetTicks()); }
	constexpr FTimespan operator-(const FDateTime& Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FDateTime& operator+=(const FTimespan& Timespan) { return *this = *this + Timespan; }
	constexpr FDateTime& operator-=(const FTimespan& Timespan) { return *this = *this - Timespan; }

	friend constexpr auto operator<=>(const FDateTime&, const FDateTime&) = default;
	friend uint32 GetTypeHash(const FDateTime& DateTime) { return ::GetTypeHash(DateTime.Ticks); }

	/** "2024.05.31-23.59.59" */
	FString ToString() const;

private:
	int64 Ticks = 0;
};
