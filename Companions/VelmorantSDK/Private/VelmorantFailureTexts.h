// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IVelmorantService.h"

/** What a designer is told of a request that failed: the cause, and what to do. */
namespace VelmorantFailureTexts
{
	/** Whole sentences; empty for EVelmorantFailure::None. */
	FText Get(EVelmorantFailure Failure);
}
