// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <string>

/**
 * The desktop's secret store, which keeps what it is given locked with the user's session. The toolkit has one item there. It is reached
 * through the desktop's own program, secret-tool, which gets the secret through its standard input and two seconds for an answer.
 */
namespace DesktopSecrets
{
	/** How people find the item in the desktop's own tools. */
	inline const TCHAR* const ItemLabel = TEXT("Velmorant sign-in");

	//~ Each tells whether it was done. OutReason says why not, as a part of a sentence and without the secret.

	/** Whether there may be a store: its program is installed, and VELMORANT_NO_KEYRING, set to anything, does not forbid it. */
	bool IsThere(FString& OutReason);

	/** In the place of what was kept before. */
	bool Store(const std::string& Secret, FString& OutReason);

	bool Load(std::string& OutSecret, FString& OutReason);

	/** Done as well when nothing was kept. */
	bool Clear(FString& OutReason);
}
