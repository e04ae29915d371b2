// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	/** What to use instead of a type that is common in C++ and unknown to the reflection system; empty if nothing comes to mind. */
	std::string FindTypeRemedy(const FTypeUse& Type);
}
