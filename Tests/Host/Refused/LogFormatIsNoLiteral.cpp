// refused: a log format that is no literal
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

void Describe(const FString& Text)
{
	UE_LOG(LogTemp, Warning, *Text);
}
