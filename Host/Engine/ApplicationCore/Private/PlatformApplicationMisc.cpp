// Copyright Velmorant. All Rights Reserved.

#include "HAL/PlatformApplicationMisc.h"

#include "HostClipboard.h"
#include "HostState.h"

namespace HostClipboard
{
	THostState<TArray<FString>> History;

	const TArray<FString>& GetHistory()
	{
		return History.Get();
	}
}

void FPlatformApplicationMisc::ClipboardCopy(const TCHAR* Str)
{
	HostClipboard::History.Get().Add(FString(Str));
}

void FPlatformApplicationMisc::ClipboardPaste(FString& Dest)
{
	const TArray<FString>& History = HostClipboard::GetHistory();
	Dest = History.IsEmpty() ? FString() : History.Last();
}
