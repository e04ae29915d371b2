// refused: an FString where the format says %s
// compiler: A formatted argument must be a number, a character or a pointer
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(const FString& Text)
{
	return FString::Printf(TEXT("%s"), Text);
}
