// Copyright Velmorant. All Rights Reserved.

#include "Scripts/ToolkitScripts.h"

#include "Icons/IconTopic.h"

namespace ToolkitScripts
{
	/** Everything: it tells people by notifications, and what they do not show by its log. */
	bool IsOfToolkit(const FHostLogLine& Line)
	{
		return Line.Category.ToString().StartsWith(TEXT("LogVelmorant"));
	}

	/** The service tells of its files in the log only. */
	bool IsServiceTrouble(const FHostLogLine& Line)
	{
		return Line.Verbosity <= ELogVerbosity::Error && Line.Category == FName("LogVelmorantSDK");
	}

	FScriptExtension MakeExtension()
	{
		return {{IconTopic::Get()}, &IsOfToolkit, &IsServiceTrouble};
	}
}
