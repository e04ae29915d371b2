// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/LayoutValues.h"

/** Functions of the panel that a widget calls back: properties of a widget whose value is the name of one. */
namespace LayoutFunctions
{
	/** Whether the value names a function of the panel that fits. Only the item generator of a combo box can be bound so far. */
	bool Check(const FLayoutValue& Value, const UClass& PanelClass, const FDelegateProperty& Property, FString& OutReason);

	/** Binds the function that the value names, once Check() has approved of it. */
	void Bind(const FLayoutValue& Value, const FLayoutScope& Scope, void* Dest);
}
