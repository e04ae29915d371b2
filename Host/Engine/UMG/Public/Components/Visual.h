// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Visual.generated.h"

/** Base of what stands in a widget tree: widgets and their slots. */
UCLASS(Abstract, BlueprintType)
class UMG_API UVisual : public UObject
{
	GENERATED_BODY()

public:
	virtual void ReleaseSlateResources([[maybe_unused]] bool bReleaseChildren) {}
};
