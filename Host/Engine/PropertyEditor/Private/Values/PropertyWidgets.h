// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Kinds/PropertyKind.h"

class FPropertyNode;
class SWidget;

/** The widgets of properties that nobody customizes. They read the value each time they are looked at, and keep no object alive. */
namespace PropertyWidgets
{
	/** Empty texts stand for the property's own. */
	TSharedRef<SWidget> MakeName(const TSharedRef<FPropertyNode>& Node, const FText& NameOverride, const FText& ToolTipOverride);

	/** Something to see and, unless it is read-only, to change the value with. The null widget for structs that only their members show. */
	TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node);

	/** What stands behind the value: the swatch of a colour, the buttons of an array. The null widget where there is nothing. */
	TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node);

	//~ For kinds of property to make theirs of
	/** For values that one line of text tells. */
	TSharedRef<SWidget> MakeTextBox(const TSharedRef<FPropertyNode>& Node);

	/** Whether the widget is enabled. */
	bool CanEdit(TSharedRef<FPropertyNode> Node);

	/** What a widget shows when there is not one value: "Multiple Values" when the objects do not agree, else nothing. */
	FText GetTextInPlaceOfValue(FPropertyAccess::Result Result);
}
