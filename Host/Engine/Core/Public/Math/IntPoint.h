// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

/** A place or an extent in whole pixels. The default constructor leaves the values open. */
struct FIntPoint
{
	using IntType = int32;

	int32 X;
	int32 Y;

	static const FIntPoint ZeroValue;
	static const FIntPoint NoneValue;

	FIntPoint() {} // NOLINT: uninitialised, as in the engine
	constexpr FIntPoint(int32 InX, int32 InY)
		: X(InX)
		, Y(InY)
	{
	}
	constexpr FIntPoint(int32 InXY)
		: X(InXY)
		, Y(InXY)
	{
	}
	explicit constexpr FIntPoint(EForceInit)
		: FIntPoint(0)
	{
	}

	constexpr FIntPoint operator+(const FIntPoint& Other) const { return FIntPoint(X + Other.X, Y + Other.Y); }
	constexpr FIntPoint operator-(const FIntPoint& Other) const { return FIntPoint(X - Other.X, Y - Other.Y); }
	friend constexpr bool operator==(const FIntPoint& A, const FIntPoint& B) { return A.X == B.X && A.Y == B.Y; }
	friend uint32 GetTypeHash(const FIntPoint& Point) { return HashCombine(::GetTypeHash(Point.X), ::GetTypeHash(Point.Y)); }
};

inline constexpr FIntPoint FIntPoint::ZeroValue(0, 0);
inline constexpr FIntPoint FIntPoint::NoneValue(INDEX_NONE, INDEX_NONE);
