// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "UObject/ObjectMacros.h"

#include "SlateWrapperTypes.generated.h"

/** EVisibility as a reflected enum. */
UENUM(BlueprintType)
enum class ESlateVisibility : uint8
{
	Visible,
	Collapsed,
	Hidden,
	HitTestInvisible,
	SelfHitTestInvisible,
};
