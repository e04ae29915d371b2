// refused: a text where the format of a check says %s
// compiler: A formatted argument must be a number, a character or a pointer
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

void Describe(const FText& Text)
{
	checkf(!Text.IsEmpty(), TEXT("%s"), Text);
}
