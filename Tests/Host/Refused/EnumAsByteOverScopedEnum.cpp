// refused: TEnumAsByte over a scoped enum
// compiler: TEnumAsByte is not for enum classes
// Copyright Velmorant. All Rights Reserved.

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"

enum class EFinish : uint8
{
	Matt,
	Gloss
};

TEnumAsByte<EFinish> Finish;
