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

		TQuat<T> Quaternion() const;
	};

	template<typename T>
	inline constexpr TRotator<T> TRotator<T>::ZeroRotator(0, 0, 0);

	extern template TQuat<float> TRotator<float>::Quaternion() const;
	extern template TQuat<double> TRotator<double>::Quaternion() const;
}
