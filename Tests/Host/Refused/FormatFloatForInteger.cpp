// refused: a floating point number where the format says %d
// compiler: FormatDirectiveNeedsAnIntegerOfThatSize
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(double Value)
{
	return FString::Printf(TEXT("%d"), Value);
}
