// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UnitVolumeActor.generated.h"

/** What tells one unit volume from another. */
USTRUCT(BlueprintType)
struct VELMORANTPRO_API FUnitVolumeUniqueIdentifier
{
	GENERATED_BODY()

	FUnitVolumeUniqueIdentifier() = default;
	FUnitVolumeUniqueIdentifier(int32 InUnitID, const FString& InKeycode)
		: UnitID(InUnitID)
		, Keycode(InKeycode)
	{
	}

	/** The service's number for the unit; -1 while no unit is assigned. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumeConfig")
	int32 UnitID = -1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumeConfig")
	FString Keycode;

	bool HasValidKeycode() const { return !Keycode.IsEmpty(); }
};

/** The clickable volume of one apartment or commercial unit. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AUnitVolumeActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumeConfig")
	FUnitVolumeUniqueIdentifier UniqueIdentifier;

	/** Half of the box's size along its own axes, in centimetres, before the actor is scaled; the actor stands in its middle. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumeConfig")
	FVector BoxExtent = FVector(600.0, 450.0, 140.0);

	/** The name that the level shows; outside the editor the object's own. */
	UFUNCTION(BlueprintPure, Category = "UnitVolumeConfig")
	FString GetVolumeLabel() const;
};
