// refused: a name where the log format says %s
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

void Describe(FName Name)
{
	UE_LOG(LogTemp, Warning, TEXT("%s"), Name);
}
