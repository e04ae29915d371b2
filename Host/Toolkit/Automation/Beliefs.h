// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Automation/AutomationReport.h"

/** What a test found out about the world that it ran in, recorded as a line "Belief: name = value". */
struct FBelief
{
	FString Name;
	FString Value;
};

namespace Beliefs
{
	TArray<FBelief> Of(const FReportedTest& Test);

	/** Why host and engine are meant to differ in it; null where they are not. */
	const TCHAR* FindIntention(const FString& Name);
}
