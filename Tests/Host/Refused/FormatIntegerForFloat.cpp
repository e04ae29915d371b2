// refused: an integer where the format says %f
// compiler: FormatDirectiveNeedsAFloatingPointNumber
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(int32 Value)
{
	return FString::Printf(TEXT("%f"), Value);
}
