// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Templates/TypeHash.h"

#include <compare>

namespace ETimespan
{
	// Ticks of 100 nanoseconds.
	constexpr int64 TicksPerMicrosecond = 10;
	constexpr int64 TicksPerMillisecond = 10000;
	constexpr int64 TicksPerSecond = 10000000;
	constexpr int64 TicksPerMinute = 600000000;
	constexpr int64 TicksPerHour = 36000000000;
	constexpr int64 TicksPerDay = 864000000000;
}

/** A duration, negative ones included. The default constructor gives none. */
struct FTimespan
{
	constexpr FTimespan() = default;
	explicit constexpr FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}
	constexpr FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
		: Ticks(Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute + Seconds * ETimespan::TicksPerSecond)
	{
	}

	static constexpr FTimespan FromSeconds(double Seconds) { return FTimespan(static_cast<int64>(Seconds * ETimespan::TicksPerSecond + (Seconds < 0.0 ? -0.5 : 0.5))); }

	constexpr int64 GetTicks() const { return Ticks; }
	constexpr double GetTotalSeconds() const { return static_cast<double>(Ticks) / ETimespan::TicksPerSecond; }
	constexpr int32 GetSeconds() const { return static_cast<int32>(Ticks / ETimespan::TicksPerSecond % 60); }

	constexpr FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	constexpr FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FTimespan operator-() const { return FTimespan(-Ticks); }
	constexpr FTimespan operator*(double Scalar) const { return FromSeconds(GetTotalSeconds() * Scalar); }
	constexpr FTimespan& operator+=(const FTimespan& Other) { return *this = *this + Other; }
	constexpr FTimespan& operator-=(const FTimespan& Other) { return *this = *this - Other; }

	friend constexpr auto operator<=>(const FTimespan&, const FTimespan&) = default;
	friend uint32 GetTypeHash(const FTimespan& Timespan) { return ::GetTypeHash(Timespan.Ticks); }

private:
	int64 Ticks = 0;
};
