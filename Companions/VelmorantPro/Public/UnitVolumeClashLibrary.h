// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UnitVolumeClashLibrary.generated.h"

class AActor;

/**
 * Which unit volumes the running model cannot tell apart just now: those with the same number and the same key code, letter case aside.
 * Volumes without key code clash with none.
 */
UCLASS()
class VELMORANTPRO_API UUnitVolumeClashLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Whether any two of them clash. Actors that are no unit volumes, or are gone, do not count. */
	UFUNCTION(BlueprintPure, Category = "UnitVolumeConfig")
	static bool DoVolumesClash(const TArray<AActor*>& Volumes);

	/** How many key codes there are in the level whose volumes clash. */
	UFUNCTION(BlueprintPure, Category = "UnitVolumeConfig", meta = (WorldContext = "WorldContextObject"))
	static int32 CountClashingKeycodes(const UObject* WorldContextObject);
};
