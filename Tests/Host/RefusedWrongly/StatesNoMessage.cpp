// refused: comparing texts with ==
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(const FText& A, const FText& B)
{
	return A == B;
}
