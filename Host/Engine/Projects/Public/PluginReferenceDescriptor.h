// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

/** A plugin that a project or another plugin wants, or does not want. */
struct FPluginReferenceDescriptor
{
	FString Name;
	bool bEnabled = false;
	bool bOptional = false; // may be missing
};
