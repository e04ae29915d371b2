// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/CheckReport.h"

/**
 * The toolkit's own start-up check of the unit volumes' collision set-up, run on a project on disk.
 *
 * Nothing is decided here: the profile is there when the toolkit logged that it is, and missing when its question about it stands.
 */
namespace CollisionCheck
{
	/** Runs the check behind a write overlay: not a byte on disk changes. */
	FCheckReport Look(const FString& Project);

	/**
	 * Runs the check and, when the profile is missing, the toolkit's repair by the buttons a person would press; then a new editor
	 * checks again. The configuration file is locked all the while, so that two repairs at once do not lose each other's lines. A file
	 * that could not be replaced or read is refused before anything is written.
	 */
	FCheckReport Repair(const FString& Project);
}
