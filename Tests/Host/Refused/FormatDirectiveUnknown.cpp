// refused: a directive that does not exist
// compiler: FormatDirectiveIsUnknown
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(int32 Value)
{
	return FString::Printf(TEXT("%y"), Value);
}
