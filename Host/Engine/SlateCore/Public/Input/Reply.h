// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** What a handler says about an event it was given. */
class SLATECORE_API FReply
{
public:
	static FReply Handled() { return FReply(true); }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled)
	{
	}

	bool bIsHandled;
};
