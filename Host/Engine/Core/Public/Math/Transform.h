// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"

namespace UE::Math
{
	/** Scale, then rotation, then translation. */
	template<typename T>
	struct TTransform
	{
		using FReal = T;

		static const TTransform Identity;

		constexpr TTransform() = default;
		explicit constexpr TTransform(const TVector<T>& InTranslation)
			: Translation(InTranslation)
		{
		}
		explicit constexpr TTransform(const TQuat<T>& InRotation)
			: Rotation(InRotation)
		{
		}
		explicit TTransform(const TRotator<T>& InRotation)
			: Rotation(InRotation.Quaternion())
		{
		}
		constexpr TTransform(const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1, 1, 1))
			: Rotation(InRotation)
			, Translation(InTranslation)
			, Scale3D(InScale3D)
		{
		}
		TTransform(const TRotator<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1, 1, 1))
			: TTransform(InRotation.Quaternion(), InTranslation, InScale3D)
		{
		}

		constexpr TVector<T> GetLocation() const { return Translation; }
		constexpr TVector<T> GetScale3D() const { return Scale3D; }
		TRotator<T> Rotator() const { return Rotation.Rotator(); }
		void SetLocation(const TVector<T>& NewLocation) { Translation = NewLocation; }
		void SetRotation(const TQuat<T>& NewRotation) { Rotation = NewRotation; }

		/** Exact equality has no operator: rotations are rarely exact. */
		constexpr bool Equals(const TTransform& Other, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance) && Scale3D.Equals(Other.Scale3D, Tolerance);
		}

	private:
		TQuat<T> Rotation = TQuat<T>(0, 0, 0, 1);
		TVector<T> Translation = TVector<T>(0, 0, 0);
		TVector<T> Scale3D = TVector<T>(1, 1, 1);
	};

	template<typename T>
	inline constexpr TTransform<T> TTransform<T>::Identity;
}
