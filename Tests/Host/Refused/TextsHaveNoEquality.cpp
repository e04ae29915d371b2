// refused: comparing texts with ==
// compiler: no match for 'operator==' (operand types are 'const FText' and 'const FText')
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(const FText& A, const FText& B)
{
	return A == B;
}
