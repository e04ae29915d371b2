// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/CompositeFont.h"
#include "UObject/Object.h"

#include "Font.generated.h"

/** A font as an asset: what a FSlateFontInfo's font object is. */
UCLASS()
class ENGINE_API UFont : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FCompositeFont CompositeFont;
};
