// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

namespace VelmorantTests
{
	/** What the module's classes are found by: it exports few of them. */
	static const TCHAR* const ModulePackage = TEXT("/Script/VelmorantProEditor");
}
