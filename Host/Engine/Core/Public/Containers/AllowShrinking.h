// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** Whether a container may give memory back when elements are removed. */
enum class EAllowShrinking : uint8
{
	No,
	Yes,
	Default = Yes
};
