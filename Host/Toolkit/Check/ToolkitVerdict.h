// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** What the toolkit's check found. */
enum class EToolkitVerdict : uint8
{
	Sound,
	Missing,
	None, // it said nothing, or both
};

/** Reads in the running editor what the toolkit did at start-up. */
namespace ToolkitVerdict
{
	EToolkitVerdict Read();

	/**
	 * Presses the first button of the toolkit's question, which is the one that goes ahead.
	 * @return false when it asks nothing, or more than one question stands
	 */
	bool Accept();

	/** The toolkit's log lines, then the notifications: what a person would see. */
	TArray<FString> GetMessages();
}
