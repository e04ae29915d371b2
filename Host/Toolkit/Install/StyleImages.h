// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace StyleImages
{
	/** Files of the module's style set, by their paths in the plugin's Resources: "ClassIcons/Icon_WalkChar.png". Once each, sorted. */
	TArray<FString> List();
}
