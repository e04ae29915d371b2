// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/LayoutValues.h"

/** Does what a layout says. */
namespace LayoutRunner
{
	/**
	 * In order. The panel may be closed by one of the actions; it lives until all are done. Actions that raise their own event without
	 * end are stopped, and the log says so.
	 */
	void Run(const TArray<FLayoutAction>& Actions, const FLayoutScope& Scope);

	/** Gives a property of the panel or of a widget its value. */
	void Assign(UObject& Target, FName Property, const FLayoutValue& Value, const FLayoutScope& Scope);
}
