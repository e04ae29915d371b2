// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <cmath>

#define UE_PI (3.1415926535897932f)
#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER
#ifndef PI
#define PI UE_PI
#endif

struct FMath
{
	template<typename T>
	static constexpr T Abs(const T A)
	{
		return A < T(0) ? -A : A;
	}
	template<typename T>
	static constexpr T Min(const T A, const T B)
	{
		return B < A ? B : A;
	}
	template<typename T>
	static constexpr T Max(const T A, const T B)
	{
		return A < B ? B : A;
	}
	template<typename T>
	static constexpr T Clamp(const T X, const T Low, const T High)
	{
		if (X < Low)
		{
			return Low;
		}
		return High < X ? High : X;
	}

	static constexpr bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static constexpr bool IsNearlyEqual(double A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }

	/** Halves go up: -0.5 becomes 0. */
	static int32 RoundToInt(float Value) { return FloorToInt(Value + 0.5f); }
	static int64 RoundToInt(double Value) { return FloorToInt(Value + 0.5); }
	static int32 FloorToInt(float Value) { return static_cast<int32>(std::floor(Value)); }
	static int64 FloorToInt(double Value) { return static_cast<int64>(std::floor(Value)); }

	template<typename T>
	static constexpr T DegreesToRadians(T Degrees)
	{
		return static_cast<T>(Degrees * (UE_DOUBLE_PI / 180.0));
	}
	template<typename T>
	static constexpr T RadiansToDegrees(T Radians)
	{
		return static_cast<T>(Radians * (180.0 / UE_DOUBLE_PI));
	}
};
