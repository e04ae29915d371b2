// Copyright Velmorant. All Rights Reserved.

#include "Math/Rotator.h"

#include "Math/Quat.h"
#include "Misc/Parse.h"

#include <cmath>

namespace UE::Math
{
	template<typename T>
	TQuat<T> TRotator<T>::Quaternion() const
	{
		// Left-handed, Z up: yaw about +Z, then pitch about -Y, then roll about -X.
		const T HalfPitch = FMath::DegreesToRadians(Pitch) / T(2);
		const T HalfYaw = FMath::DegreesToRadians(Yaw) / T(2);
		const T HalfRoll = FMath::DegreesToRadians(Roll) / T(2);
		const TQuat<T> YawTurn(0, 0, std::sin(HalfYaw), std::cos(HalfYaw));
		const TQuat<T> PitchTurn(0, -std::sin(HalfPitch), 0, std::cos(HalfPitch));
		const TQuat<T> RollTurn(-std::sin(HalfRoll), 0, 0, std::cos(HalfRoll));
		return YawTurn * PitchTurn * RollTurn;
	}

	template<typename T>
	TQuat<T> TQuat<T>::operator*(const TQuat& Q) const
	{
		return TQuat(W * Q.X + X * Q.W + Y * Q.Z - Z * Q.Y,
			W * Q.Y - X * Q.Z + Y * Q.W + Z * Q.X,
			W * Q.Z + X * Q.Y - Y * Q.X + Z * Q.W,
			W * Q.W - X * Q.X - Y * Q.Y - Z * Q.Z);
	}

	template<typename T>
	TVector<T> TQuat<T>::RotateVector(const TVector<T>& V) const
	{
		const TVector<T> Axis(X, Y, Z);
		const TVector<T> Twice = TVector<T>::CrossProduct(Axis, V) * T(2);
		return V + Twice * W + TVector<T>::CrossProduct(Axis, Twice);
	}

	template<typename T>
	TRotator<T> TQuat<T>::Rotator() const
	{
		// Where the axes go tells the angles; straight up or down, yaw and roll are one, and roll is taken as none.
		const TVector<T> Forward = RotateVector(TVector<T>(1, 0, 0));
		const T FlatSize = std::sqrt(Forward.X * Forward.X + Forward.Y * Forward.Y);
		TRotator<T> Result(FMath::RadiansToDegrees(std::atan2(Forward.Z, FlatSize)), 0, 0);
		const TVector<T> Right = RotateVector(TVector<T>(0, 1, 0));
		if (FlatSize < T(UE_SMALL_NUMBER))
		{
			Result.Yaw = FMath::RadiansToDegrees(std::atan2(-Right.X, Right.Y));
			return Result;
		}
		Result.Yaw = FMath::RadiansToDegrees(std::atan2(Forward.Y, Forward.X));
		const TVector<T> Up = RotateVector(TVector<T>(0, 0, 1));
		Result.Roll = FMath::RadiansToDegrees(std::atan2(-Right.Z, Up.Z));
		return Result;
	}

	template TQuat<float> TRotator<float>::Quaternion() const;
	template TQuat<double> TRotator<double>::Quaternion() const;
	template TQuat<float> TQuat<float>::operator*(const TQuat&) const;
	template TVector<float> TQuat<float>::RotateVector(const TVector<float>&) const;
	template TRotator<float> TQuat<float>::Rotator() const;
	template TQuat<double> TQuat<double>::operator*(const TQuat&) const;
	template TVector<double> TQuat<double>::RotateVector(const TVector<double>&) const;
	template TRotator<double> TQuat<double>::Rotator() const;
}
