// refused: comparing a name with an FString
// compiler: no match for 'operator==' (operand types are 'FName' and 'const FString')
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(FName Name, const FString& String)
{
	return Name == String;
}
