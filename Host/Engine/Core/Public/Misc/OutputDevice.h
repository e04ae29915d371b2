// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "String/FormatStringSan.h"
#include "UObject/NameTypes.h"

/** Something that takes lines of text: the log, a captured log, an import's messages. */
class FOutputDevice
{
public:
	FOutputDevice() = default;
	virtual ~FOutputDevice() = default;
	FOutputDevice(const FOutputDevice&) = default;
	FOutputDevice& operator=(const FOutputDevice&) = default;

	/** One line, without category, level and line end. V is good during the call only. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	virtual void Flush() {}
};
