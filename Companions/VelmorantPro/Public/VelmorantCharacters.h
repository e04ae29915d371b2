// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Character.h"
#include "VelmorantCharacters.generated.h"

class UVelmorantViewConfig;

/** How a visitor moves through the model. Placed where the visit begins. */
UCLASS(Abstract, Blueprintable)
class VELMORANTPRO_API AVelmorantCharacter : public ACharacter
{
	GENERATED_BODY()

public:
	/** Without one, the level configuration's. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	TObjectPtr<UVelmorantViewConfig> ViewConfig;

	/** Degrees a second, at full deflection. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	float TurnSpeed = 90.0f;
};

/** Walks through rooms. */
UCLASS()
class VELMORANTPRO_API AVelmorantWalkCharacter : public AVelmorantCharacter
{
	GENERATED_BODY()

public:
	/** Centimetres a second. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	float WalkSpeed = 300.0f;

	/** Above the floor, in centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	float EyeHeight = 165.0f;
};

/** Circles around the building. */
UCLASS()
class VELMORANTPRO_API AVelmorantOrbitalCharacter : public AVelmorantCharacter
{
	GENERATED_BODY()

public:
	/** From where it was placed, in centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	float MinDistance = 1000.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantCharacter")
	float MaxDistance = 20000.0f;
};

/** Stands still and looks around. */
UCLASS()
class VELMORANTPRO_API AVelmorantPanoramicCharacter : public AVelmorantCharacter
{
	GENERATED_BODY()

public:
	/** Whether the view turns on its own while nobody touches it. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantPanoramicChar")
	bool bTurnWhenIdle = true;

	/** Degrees a second. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantPanoramicChar")
	float IdleTurnSpeed = 4.0f;
};
