// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/IntPoint.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

#include <type_traits>

namespace UE::Math
{
	/** A place or an extent on the screen, in Slate units. The default constructor leaves the values open. */
	template<typename T>
	struct TVector2
	{
		using FReal = T;

		T X;
		T Y;

		static const TVector2 ZeroVector;
		static const TVector2 UnitVector;

		TVector2() {} // NOLINT: uninitialised, as in the engine
		explicit constexpr TVector2(T InF)
			: X(InF)
			, Y(InF)
		{
		}
		constexpr TVector2(T InX, T InY)
			: X(InX)
			, Y(InY)
		{
		}
		explicit constexpr TVector2(EForceInit)
			: TVector2(T(0))
		{
		}
		constexpr TVector2(FIntPoint Point)
			: X(static_cast<T>(Point.X))
			, Y(static_cast<T>(Point.Y))
		{
		}
		template<typename FromType>
		requires(!std::is_same_v<FromType, T>) explicit constexpr TVector2(const TVector2<FromType>& Other)
			: X(static_cast<T>(Other.X))
			, Y(static_cast<T>(Other.Y))
		{
		}

		constexpr TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
		constexpr TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
		constexpr TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
		constexpr TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
		constexpr TVector2 operator*(T Scale) const { return TVector2(X * Scale, Y * Scale); }
		constexpr TVector2 operator/(T Scale) const { return TVector2(X / Scale, Y / Scale); }
		constexpr TVector2 operator-() const { return TVector2(-X, -Y); }
		constexpr TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
		constexpr TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
		constexpr TVector2& operator*=(T Scale) { return *this = *this * Scale; }
		friend constexpr TVector2 operator*(T Scale, const TVector2& V) { return V * Scale; }

		/** Exact. */
		friend constexpr bool operator==(const TVector2& A, const TVector2& B) { return A.X == B.X && A.Y == B.Y; }
		constexpr bool Equals(const TVector2& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
		}
	};

	template<typename T>
	inline constexpr TVector2<T> TVector2<T>::ZeroVector(0, 0);
	template<typename T>
	inline constexpr TVector2<T> TVector2<T>::UnitVector(1, 1);
}
