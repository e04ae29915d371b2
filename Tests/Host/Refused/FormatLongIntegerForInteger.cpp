// refused: a 64-bit integer where the format says %d
// compiler: FormatDirectiveNeedsAnIntegerOfThatSize
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(int64 Value)
{
	return FString::Printf(TEXT("%d"), Value);
}
