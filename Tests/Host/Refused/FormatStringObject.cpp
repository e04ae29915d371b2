// refused: an FString where the format says %s
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(const FString& Text)
{
	return FString::Printf(TEXT("%s"), Text);
}
