// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "FontIconHandler.h"
#include "GameFramework/Actor.h"
#include "VelmorantColorHandler.h"
#include "VelmorantLevelActors.generated.h"

/** Level-wide settings of the model. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AVelmorantLevelConfiguration : public AActor
{
	GENERATED_BODY()
};

/** Looks after all unit volumes of the level. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AUnitVolumesManager : public AActor
{
	GENERATED_BODY()
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
