// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Which settings pages somebody asked to see. */
namespace HostSettings
{
	struct FShownPage
	{
		FName Container;
		FName Category;
		FName Section;

		bool operator==(const FShownPage& Other) const = default;
	};

	/** In order of the calls; empty while the module Settings is not loaded. */
	TArray<FShownPage> GetShownPages();
}
