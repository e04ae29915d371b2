// refused: a format that is no literal
// compiler: cannot convert 'const TCHAR*' {aka 'const char16_t*'} to 'UE::Core::TCheckedFormatString
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"

FString Describe(const TCHAR* Format)
{
	return FString::Printf(Format, 1);
}
