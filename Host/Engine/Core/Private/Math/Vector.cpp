// Copyright Velmorant. All Rights Reserved.

#include "Math/Vector.h"

#include "Math/Vector2D.h"
#include "Misc/Parse.h"

namespace UE::Math
{
	template<typename T>
	FString TVector<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), X, Y, Z);
	}

	template<typename T>
	bool TVector<T>::InitFromString(const FString& InSourceString)
	{
		*this = TVector(T(0));
		return FParse::Value(*InSourceString, TEXT("X="), X) && FParse::Value(*InSourceString, TEXT("Y="), Y) && FParse::Value(*InSourceString, TEXT("Z="), Z);
	}

	template FString TVector<float>::ToString() const;
	template FString TVector<double>::ToString() const;
	template bool TVector<float>::InitFromString(const FString&);
	template bool TVector<double>::InitFromString(const FString&);
}
