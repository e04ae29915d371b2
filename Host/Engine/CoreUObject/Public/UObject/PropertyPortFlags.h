// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** How property values become text. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	PPF_Copy = 0x00000001,
	PPF_Delimited = 0x00000002, // inside a struct or container: texts are quoted
	PPF_CheckReferences = 0x00000004,
	PPF_PropertyWindow = 0x00000020, // as a property editor shows it
	PPF_DeepComparison = 0x00001000,
};
