// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "FontIconHandler.h"
#include "GameFramework/Actor.h"
#include "VelmorantColorHandler.h"
#include "VelmorantLevelActors.generated.h"

class UVelmorantMapsLinkerConfig;
class UVelmorantViewConfig;

/** Level-wide settings of the model. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AVelmorantLevelConfiguration : public AActor
{
	GENERATED_BODY()

public:
	/** The other levels that a visitor can go to. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantLevelConfiguration")
	TObjectPtr<UVelmorantMapsLinkerConfig> MapsLinker;

	/** For all characters that have none of their own. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VelmorantLevelConfiguration")
	TObjectPtr<UVelmorantViewConfig> ViewConfig;
};

/** Looks after all unit volumes of the level. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AUnitVolumesManager : public AActor
{
	GENERATED_BODY()

public:
	/** Whether the volumes show while no unit is pointed at. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumesManager")
	bool bShowVolumes = true;

	/** Of the volume that is pointed at. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "UnitVolumesManager")
	FVelmorantColorHandler HighlightColor;
};

/** A place in the model that a visitor can click. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AVlmInteractiveSpot : public AActor
{
	GENERATED_BODY()

public:
	/** What marks the spot on the screen. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Spot")
	FFontIconHandler Icon;

	/** The disc behind the icon. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Spot")
	FVelmorantColorHandler BackgroundColor;
};

/** Cuts the building open along a plane. */
UCLASS(Blueprintable)
class VELMORANTPRO_API ACuttingSectionScene : public AActor
{
	GENERATED_BODY()
};

/** Marks one floor for the minimap's pictures. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AMinimapFloorAnchor : public AActor
{
	GENERATED_BODY()
};
