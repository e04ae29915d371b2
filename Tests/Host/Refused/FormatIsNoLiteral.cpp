// refused: a format that is no literal
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(const TCHAR* Format)
{
	return FString::Printf(Format, 1);
}
