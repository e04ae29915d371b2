// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "VelmorantViewConfig.generated.h"

/** How a visitor sees the model. Angles in degrees. */
UCLASS(BlueprintType)
class VELMORANTPRO_API UVelmorantViewConfig : public UDataAsset
{
	GENERATED_BODY()

public:
	/** From left to right. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|View")
	float FieldOfView = 75.0f;

	/** How far one can look down; negative. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|View")
	float MinPitch = -80.0f;

	/** How far one can look up. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|View")
	float MaxPitch = 80.0f;
};
