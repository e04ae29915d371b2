// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** The running editor's clipboard. A window joins it with the desktop's. */
namespace HostClipboard
{
	/** All texts that were copied, oldest first; the last one is what the clipboard holds. */
	const TArray<FString>& GetHistory();
}
