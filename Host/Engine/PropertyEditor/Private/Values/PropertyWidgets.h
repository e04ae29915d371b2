// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FPropertyNode;
class SWidget;

enum class EPropertyButtons : uint8
{
	Show,
	LeaveOut, // those that change a container's number of elements
};

/** The widgets of properties that nobody customizes. They read the value each time they are looked at, and keep no object alive. */
namespace PropertyWidgets
{
	/** Empty texts stand for the property's own. */
	TSharedRef<SWidget> MakeName(const TSharedRef<FPropertyNode>& Node, const FText& NameOverride, const FText& ToolTipOverride);

	/** Something to see and, unless it is read-only, to change the value with. The null widget for structs that only their members show. */
	TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node);

	/** What stands behind the value: the swatch of a colour, the buttons of an array. The null widget where there is nothing. */
	TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node, EPropertyButtons Buttons);

	/** Both. */
	TSharedRef<SWidget> MakeWhole(const TSharedRef<FPropertyNode>& Node, EPropertyButtons Buttons);

	/** Whether the value is shown as a whole, so that its members need no rows: numbers, texts, and the engine's own small structs. */
	bool IsShownWhole(const FPropertyNode& Node);

	/** What stands for a value that the objects do not agree on. */
	FText GetMultipleValuesText();
}
