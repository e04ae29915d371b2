// refused: an ensure whose format has more directives than arguments
// compiler: FormatStringHasMoreDirectivesThanArguments
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool Describe(int32 Value)
{
	return ensureMsgf(Value > 0, TEXT("%d of %d"), Value);
}
