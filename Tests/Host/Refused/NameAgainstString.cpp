// refused: comparing a name with an FString
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(FName Name, const FString& String)
{
	return Name == String;
}
