// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "SlateTypes.generated.h"

UENUM(BlueprintType)
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined,
};

/** How a check box looks: a box to tick, or a button that stays pressed. */
namespace ESlateCheckBoxType
{
	enum Type : int
	{
		CheckBox,
		ToggleButton,
	};
}

/** The look of a kind of widget. Host: nothing is painted, so looks are names only. */
struct FSlateWidgetStyle
{
};

struct FTextBlockStyle : public FSlateWidgetStyle
{
};

struct FButtonStyle : public FSlateWidgetStyle
{
};

struct FComboBoxStyle : public FSlateWidgetStyle
{
};

struct FTableRowStyle : public FSlateWidgetStyle
{
};

struct FCheckBoxStyle : public FSlateWidgetStyle
{
};
