// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

#include <type_traits>

namespace UE::Math
{
	/** A place or a direction, in centimetres. X is forward, Y right, Z up. The default constructor leaves the values open. */
	template<typename T>
	struct TVector
	{
		using FReal = T;

		T X;
		T Y;
		T Z;

		static const TVector ZeroVector;
		static const TVector OneVector;
		static const TVector UpVector;
		static const TVector ForwardVector;
		static const TVector RightVector;

		TVector() {} // NOLINT: uninitialised, as in the engine
		explicit constexpr TVector(T InF)
			: X(InF)
			, Y(InF)
			, Z(InF)
		{
		}
		constexpr TVector(T InX, T InY, T InZ)
			: X(InX)
			, Y(InY)
			, Z(InZ)
		{
		}
		explicit constexpr TVector(EForceInit)
			: TVector(T(0))
		{
		}
		template<typename FromType>
		requires(!std::is_same_v<FromType, T>) explicit constexpr TVector(const TVector<FromType>& Other)
			: X(static_cast<T>(Other.X))
			, Y(static_cast<T>(Other.Y))
			, Z(static_cast<T>(Other.Z))
		{
		}

		constexpr TVector operator+(const TVector& V) const { return TVector(X + V.X, Y + V.Y, Z + V.Z); }
		constexpr TVector operator-(const TVector& V) const { return TVector(X - V.X, Y - V.Y, Z - V.Z); }
		constexpr TVector operator*(const TVector& V) const { return TVector(X * V.X, Y * V.Y, Z * V.Z); }
		constexpr TVector operator/(const TVector& V) const { return TVector(X / V.X, Y / V.Y, Z / V.Z); }
		constexpr TVector operator*(T Scale) const { return TVector(X * Scale, Y * Scale, Z * Scale); }
		constexpr TVector operator/(T Scale) const { return TVector(X / Scale, Y / Scale, Z / Scale); }
		constexpr TVector operator-() const { return TVector(-X, -Y, -Z); }
		constexpr TVector& operator+=(const TVector& V) { return *this = *this + V; }
		constexpr TVector& operator-=(const TVector& V) { return *this = *this - V; }
		constexpr TVector& operator*=(T Scale) { return *this = *this * Scale; }
		friend constexpr TVector operator*(T Scale, const TVector& V) { return V * Scale; }

		/** Exact. */
		friend constexpr bool operator==(const TVector& A, const TVector& B) { return A.X == B.X && A.Y == B.Y && A.Z == B.Z; }
		constexpr bool Equals(const TVector& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
		}

		static constexpr TVector CrossProduct(const TVector& A, const TVector& B)
		{
			return TVector(A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X);
		}

		/** "X=1.000 Y=2.000 Z=3.000" */
		FString ToString() const;
		/** @return whether all three were there. */
		bool InitFromString(const FString& InSourceString);
	};

	template<typename T>
	inline constexpr TVector<T> TVector<T>::ZeroVector(0, 0, 0);
	template<typename T>
	inline constexpr TVector<T> TVector<T>::OneVector(1, 1, 1);
	template<typename T>
	inline constexpr TVector<T> TVector<T>::UpVector(0, 0, 1);
	template<typename T>
	inline constexpr TVector<T> TVector<T>::ForwardVector(1, 0, 0);
	template<typename T>
	inline constexpr TVector<T> TVector<T>::RightVector(0, 1, 0);

	extern template FString TVector<float>::ToString() const;
	extern template FString TVector<double>::ToString() const;
	extern template bool TVector<float>::InitFromString(const FString&);
	extern template bool TVector<double>::InitFromString(const FString&);
}
