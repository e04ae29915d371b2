// refused: a log format that is no literal
// compiler: from 'const TCHAR*' {aka 'const char16_t*'} to 'UE::Core::TCheckedFormatString
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

void Describe(const FString& Text)
{
	UE_LOG(LogTemp, Warning, *Text);
}
