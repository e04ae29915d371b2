// refused: a wide literal as text
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe()
{
	return FString(L"wide");
}
