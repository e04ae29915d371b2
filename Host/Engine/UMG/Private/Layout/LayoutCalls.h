// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/LayoutValues.h"

/** Calls of reflected functions with arguments that are worked out. */
namespace LayoutCalls
{
	/**
	 * Makes the call.
	 * @return the parameters after it, the result among them; null when there is nothing to call just now, or when a value does not
	 * fit its parameter, which the log tells.
	 */
	TSharedPtr<FLayoutParameterBlock> Make(const FLayoutFunctionCall& Call, const FLayoutScope& Scope);
}
