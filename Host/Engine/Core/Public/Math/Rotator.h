// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"

namespace UE::Math
{
	/** A rotation in degrees: pitch up, yaw to the right, roll clockwise. The default constructor leaves the values open. */
	template<typename T>
	struct TRotator
	{
		using FReal = T;

		T Pitch;
		T Yaw;
		T Roll;

		static const TRotator ZeroRotator;

		TRotator() {} // NOLINT: uninitialised, as in the engine
		constexpr TRotator(T InPitch, T InYaw, T InRoll)
			: Pitch(InPitch)
			, Yaw(InYaw)
			, Roll(InRoll)
		{
		}
		explicit constexpr TRotator(T InF)
			: TRotator(InF, InF, InF)
		{
		}
		explicit constexpr TRotator(EForceInit)
			: TRotator(T(0))
		{
		}

		constexpr TRotator operator+(const TRotator& R) const { return TRotator(Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll); }
		constexpr TRotator operator-(const TRotator& R) const { return TRotator(Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll); }
		constexpr TRotator operator*(T Scale) const { return TRotator(Pitch * Scale, Yaw * Scale, Roll * Scale); }

		/** Exact; full turns count. */
		friend constexpr bool operator==(const TRotator& A, const TRotator& B) { return A.Pitch == B.Pitch && A.Yaw == B.Yaw && A.Roll == B.Roll; }
		/** Full turns do not count. */
		bool Equals(const TRotator& R, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return FMath::Abs(NormalizeAxis(Pitch - R.Pitch)) <= Tolerance && FMath::Abs(NormalizeAxis(Yaw - R.Yaw)) <= Tolerance && FMath::Abs(NormalizeAxis(Roll - R.Roll)) <= Tolerance;
		}
		constexpr bool IsZero() const { return Pitch == T(0) && Yaw == T(0) && Roll == T(0); }
		bool IsNearlyZero(T Tolerance = UE_KINDA_SMALL_NUMBER) const { return Equals(TRotator(T(0)), Tolerance); }

		/** The same direction in (-180, 180]. */
		static T NormalizeAxis(T Angle)
		{
			Angle = FMath::Fmod(Angle, T(360));
			Angle = Angle < T(0) ? Angle + T(360) : Angle;
			return Angle > T(180) ? Angle - T(360) : Angle;
		}
		TRotator GetNormalized() const { return TRotator(NormalizeAxis(Pitch), NormalizeAxis(Yaw), NormalizeAxis(Roll)); }

		/** Where this rotation turns the forward axis to. */
		TVector<T> Vector() const;
		TQuat<T> Quaternion() const;

		/** "P=1.000000 Y=2.000000 R=3.000000" */
		FString ToString() const;
		/** @return whether all three were there. */
		bool InitFromString(const FString& InSourceString);
	};

	template<typename T>
	inline constexpr TRotator<T> TRotator<T>::ZeroRotator(0, 0, 0);

	extern template TVector<float> TRotator<float>::Vector() const;
	extern template TQuat<float> TRotator<float>::Quaternion() const;
	extern template FString TRotator<float>::ToString() const;
	extern template bool TRotator<float>::InitFromString(const FString&);
	extern template TVector<double> TRotator<double>::Vector() const;
	extern template TQuat<double> TRotator<double>::Quaternion() const;
	extern template FString TRotator<double>::ToString() const;
	extern template bool TRotator<double>::InitFromString(const FString&);
}
