// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** Things that concern the editor program as a whole. */
class UNREALED_API FUnrealEdMisc
{
public:
	static FUnrealEdMisc& Get();

	/**
	 * Asks for the editor to go down and come up again. Host: the request is recorded, together with what is not saved; whoever runs
	 * the editor acts on it.
	 * @param bWarn whether the user is to be asked first
	 */
	void RestartEditor(bool bWarn, const TOptional<FString>& NewCommandLine = TOptional<FString>());

private:
	FUnrealEdMisc() = default;
};
