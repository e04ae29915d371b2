// Copyright Velmorant. All Rights Reserved.

#include "HostLog.h"

#include "Misc/OutputDeviceHelper.h"

namespace HostLog
{
	TArray<FHostLogLine>& Lines()
	{
		static TArray<FHostLogLine>* Recorded = new TArray<FHostLogLine>; // never destroyed: static objects log when they go
		return *Recorded;
	}
}

FString FHostLogLine::ToString() const
{
	return FOutputDeviceHelper::FormatLogLine(Verbosity, Category, *Text);
}

const TArray<FHostLogLine>& HostLog::GetLines()
{
	return Lines();
}

void HostLog::Clear()
{
	Lines().Empty();
}

void HostLog::Record(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Text)
{
	Lines().Add(FHostLogLine{Category, Verbosity, Text});
}
