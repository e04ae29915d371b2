// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** Services of the desktop. */
struct FPlatformApplicationMisc
{
	/** Replaces the clipboard; an empty text does so, too. Host: the clipboard belongs to the running editor. */
	static void ClipboardCopy(const TCHAR* Str);

	static void ClipboardPaste(FString& Dest);
};
