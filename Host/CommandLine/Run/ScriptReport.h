// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/StepRecord.h"
#include "Templates/UniquePtr.h"

/** Who is told how a script goes. */
class IScriptReport
{
public:
	virtual ~IScriptReport() = default;

	virtual void TellStep(const FStepRecord& Record) = 0;
	virtual void TellEnd(const FRunSummary& Summary) = 0;

	/** On the error output alone: why the script ends before this line. */
	virtual void TellStopped(int32 Line, const FString& Reason) = 0;
};

namespace ScriptReport
{
	/**
	 * For people, or as one JSON object a line. Both go to the standard output; what went wrong also goes to the error output.
	 * @param Script as the user named it
	 */
	TUniquePtr<IScriptReport> Make(const FString& Script, bool bJson);

	/** What to print on the error output about a step; nothing for one that is done. */
	FString DescribeTrouble(const FString& Script, const FStepRecord& Record);
}
