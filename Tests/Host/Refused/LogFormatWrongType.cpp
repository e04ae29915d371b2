// refused: a name where the log format says %s
// compiler: A formatted argument must be a number, a character or a pointer
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

void Describe(FName Name)
{
	UE_LOG(LogTemp, Warning, TEXT("%s"), Name);
}
