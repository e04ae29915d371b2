// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FVelmorantUserInformation;

/**
 * What "Remember me" keeps of the developer user: in the desktop's secret store where there is one, else in a file in the user's own
 * configuration folder that only they can read (mode 0600), never in the project. The file is there in both cases: whoever is not
 * remembered has none, and the store is not asked. Failures are logged without what is kept.
 */
namespace SavedUserData
{
	/** @return false, leaving the record alone, when nothing was saved or it cannot be read. */
	bool Load(FVelmorantUserInformation& OutUserInformation);

	/** @return whether it was kept. */
	bool Save(const FVelmorantUserInformation& UserInformation);

	/** Deletes it in both places; there may be nothing. */
	void Forget();
}
