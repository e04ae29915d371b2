// refused: more directives than arguments
// compiler: FormatStringHasMoreDirectivesThanArguments
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(int32 Value)
{
	return FString::Printf(TEXT("%d of %d"), Value);
}
