// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** One line of the log. */
struct FHostLogLine
{
	FName Category;
	ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
	FString Text;

	/** As the editor's log file has it: "LogX: Warning: text". */
	FString ToString() const;
};

/**
 * Every line that was logged since the last Clear. Whoever boots an editor clears first; the lines outlive the editor, so that what
 * it logged while going down can be looked at.
 */
namespace HostLog
{
	const TArray<FHostLogLine>& GetLines();
	void Clear();

	/** Called by the log itself. */
	void Record(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Text);
}
