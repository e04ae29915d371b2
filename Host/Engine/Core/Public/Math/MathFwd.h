// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
	template<typename T>
	struct TVector;
	template<typename T>
	struct TVector2;
	template<typename T>
	struct TRotator;
	template<typename T>
	struct TQuat;
	template<typename T>
	struct TTransform;
}

using FVector = UE::Math::TVector<double>;
using FVector3d = UE::Math::TVector<double>;
using FVector3f = UE::Math::TVector<float>;
using FVector2D = UE::Math::TVector2<double>;
using FVector2d = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;
using FRotator = UE::Math::TRotator<double>;
using FRotator3f = UE::Math::TRotator<float>;
using FQuat = UE::Math::TQuat<double>;
using FTransform = UE::Math::TTransform<double>;

struct FColor;
struct FLinearColor;
struct FIntPoint;
