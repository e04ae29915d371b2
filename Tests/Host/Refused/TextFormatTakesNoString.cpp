// refused: an FString as an argument of a text format
// compiler: no matching function for call to 'FText::Format(FText, const FString&)'
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FText Describe(const FString& Name)
{
	return FText::Format(INVTEXT("{0}"), Name);
}
