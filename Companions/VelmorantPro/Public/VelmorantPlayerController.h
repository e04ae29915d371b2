// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/PlayerController.h"
#include "Templates/SubclassOf.h"
#include "VelmorantPlayerController.generated.h"

class AVelmorantCharacter;

/** What a visitor can do in the model. Its settings are those of a Blueprint made of it, or of its class. */
UCLASS()
class VELMORANTPRO_API AVelmorantPlayerController : public APlayerController
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantPlayerController")
	bool bShowPointer = true;

	/** Without any input, the model goes back to where it began after so many seconds; 0 never does. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantPlayerController")
	float SecondsUntilReset = 0.0f;

	/** What the visitor can switch between, in this order; the first one is where the visit begins. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ControllerSwitchPawn")
	TArray<TSubclassOf<AVelmorantCharacter>> Characters;

	/** How long the camera takes from one to the other, in seconds. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ControllerSwitchPawn")
	float SwitchSeconds = 0.5f;
};
