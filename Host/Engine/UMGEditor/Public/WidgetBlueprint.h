// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"

#include "WidgetBlueprint.generated.h"

/** A panel as an asset. Host: it is a widget layout, somebody's source; it is read, never written. */
UCLASS(BlueprintType)
class UMGEDITOR_API UWidgetBlueprint : public UBlueprint
{
	GENERATED_BODY()
};
