// refused: more arguments than directives
// compiler: FormatStringHasFewerDirectivesThanArguments
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(int32 Value)
{
	return FString::Printf(TEXT("%d"), Value, Value);
}
