// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "VelmorantUIStyleConfiguration.generated.h"

/** The look of a model's user interface: palette and fonts. */
UCLASS(BlueprintType)
class VELMORANTPROUI_API UVelmorantUIStyleConfiguration : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Shown in style pickers. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FText DisplayName;
};
