// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

namespace UE::Reflection
{
	/** "bShowHTTPErrors" (a bool) becomes "Show HTTP Errors", "Unit_Name" becomes "Unit Name". */
	FString NameToDisplayString(const FString& Name, bool bIsBool);
}
