// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

#include <string>

/** Files that only their owner can read. */
namespace PrivateFile
{
	/** Replaces the file as a whole, with mode 0600 from the first byte on; makes missing folders, readable by their owner only. */
	bool Write(const FString& Path, const std::string& Bytes, FString& OutError);
}
