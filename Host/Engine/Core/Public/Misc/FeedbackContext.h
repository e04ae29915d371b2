// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreGlobals.h"
#include "CoreTypes.h"

class FText;

/** Where long operations report to; GWarn is one, and never null. The host shows no progress, steps go to the log. */
class CORE_API FFeedbackContext
{
public:
	virtual ~FFeedbackContext() = default;

	virtual void StatusUpdate(int32 Numerator, int32 Denominator, const FText& StatusText);
};
