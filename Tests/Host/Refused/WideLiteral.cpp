// refused: a wide literal as text
// compiler: no matching function for call to 'FString::FString(const wchar_t [5])'
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe()
{
	return FString(L"wide");
}
