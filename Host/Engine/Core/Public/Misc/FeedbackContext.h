// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreGlobals.h"
#include "CoreTypes.h"

/** Where long operations report to; GWarn is one, and never null. Nothing here reports, so there is nothing to show. */
class CORE_API FFeedbackContext
{
public:
	virtual ~FFeedbackContext() = default;
};
