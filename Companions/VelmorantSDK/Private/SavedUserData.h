// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FVelmorantUserInformation;

/**
 * What "Remember me" keeps of the developer user: a file in the user's own configuration folder that only they can read (mode
 * 0600), never in the project. Failures are logged without the file's contents.
 */
namespace SavedUserData
{
	/** @return false, leaving the record alone, when nothing was saved or the file is damaged. */
	bool Load(FVelmorantUserInformation& OutUserInformation);

	/** @return whether it was kept. */
	bool Save(const FVelmorantUserInformation& UserInformation);

	/** Deletes the file; it may be missing. */
	void Forget();
}
