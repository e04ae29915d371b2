// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"

namespace UE::Math
{
	/** A rotation as a unit quaternion. The default constructor leaves the values open. */
	template<typename T>
	struct TQuat
	{
		using FReal = T;

		T X;
		T Y;
		T Z;
		T W;

		static const TQuat Identity;

		TQuat() {} // NOLINT: uninitialised, as in the engine
		constexpr TQuat(T InX, T InY, T InZ, T InW)
			: X(InX)
			, Y(InY)
			, Z(InZ)
			, W(InW)
		{
		}

		/** First Q, then this. */
		TQuat operator*(const TQuat& Q) const;
		TVector<T> RotateVector(const TVector<T>& V) const;
		TRotator<T> Rotator() const;

		friend constexpr bool operator==(const TQuat& A, const TQuat& B) { return A.X == B.X && A.Y == B.Y && A.Z == B.Z && A.W == B.W; }
		/** A rotation has two quaternions; both count as equal. */
		constexpr bool Equals(const TQuat& Q, T Tolerance = UE_KINDA_SMALL_NUMBER) const
		{
			const auto Near = [this, &Q, Tolerance](T Sign) {
				return FMath::Abs(X - Sign * Q.X) <= Tolerance && FMath::Abs(Y - Sign * Q.Y) <= Tolerance && FMath::Abs(Z - Sign * Q.Z) <= Tolerance && FMath::Abs(W - Sign * Q.W) <= Tolerance;
			};
			return Near(T(1)) || Near(T(-1));
		}
	};

	template<typename T>
	inline constexpr TQuat<T> TQuat<T>::Identity(0, 0, 0, 1);

	extern template TQuat<float> TQuat<float>::operator*(const TQuat&) const;
	extern template TVector<float> TQuat<float>::RotateVector(const TVector<float>&) const;
	extern template TRotator<float> TQuat<float>::Rotator() const;
	extern template TQuat<double> TQuat<double>::operator*(const TQuat&) const;
	extern template TVector<double> TQuat<double>::RotateVector(const TVector<double>&) const;
	extern template TRotator<double> TQuat<double>::Rotator() const;
}
