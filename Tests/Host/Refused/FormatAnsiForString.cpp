// refused: an 8-bit string where the format says %s
// compiler: FormatDirectiveNeedsAConstTCharPointer
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(const ANSICHAR* Text)
{
	return FString::Printf(TEXT("%s"), Text);
}
