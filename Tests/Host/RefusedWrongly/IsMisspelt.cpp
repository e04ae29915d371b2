// refused: comparing a name with an FString, but the compiler fails for another reason
// compiler: no match for 'operator==' (operand types are 'FName' and 'const FString')
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

bool AreEqual(FNama Name, const FString& String)
{
	return Name == String;
}
