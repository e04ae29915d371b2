// refused: nothing, so this must be noticed
// compiler: no match for
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(FName A, FName B)
{
	return A == B;
}
