// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace CollisionLines
{
	/**
	 * The lines that the toolkit's repair adds to a configuration, in order: found out by letting it repair one that exists only in memory.
	 * @param ProjectDir nothing in it is read or written
	 */
	TArray<FString> Make(const FString& ProjectDir);
}
