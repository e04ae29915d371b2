// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "SlateEnums.generated.h"

UENUM(BlueprintType)
enum EHorizontalAlignment : int
{
	HAlign_Fill UMETA(DisplayName = "Fill"),
	HAlign_Left UMETA(DisplayName = "Left"),
	HAlign_Center UMETA(DisplayName = "Center"),
	HAlign_Right UMETA(DisplayName = "Right"),
};

UENUM(BlueprintType)
enum EVerticalAlignment : int
{
	VAlign_Fill UMETA(DisplayName = "Fill"),
	VAlign_Top UMETA(DisplayName = "Top"),
	VAlign_Center UMETA(DisplayName = "Center"),
	VAlign_Bottom UMETA(DisplayName = "Bottom"),
};

/** How the text of an editable field was committed. */
UENUM(BlueprintType)
namespace ETextCommit
{
	enum Type : int
	{
		Default,
		OnEnter,
		OnUserMovedFocus,
		OnCleared,
	};
}

/** What made a selection: a person (key, navigation, mouse) or code (Direct). */
UENUM(BlueprintType)
namespace ESelectInfo
{
	enum Type : int
	{
		OnKeyPress,
		OnNavigation,
		OnMouseClick,
		Direct,
	};
}

UENUM(BlueprintType)
enum EOrientation : int
{
	Orient_Horizontal UMETA(DisplayName = "Horizontal"),
	Orient_Vertical UMETA(DisplayName = "Vertical"),
};
