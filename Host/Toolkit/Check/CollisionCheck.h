// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/CheckReport.h"
#include "EditorArguments.h"

/**
 * The toolkit's own start-up check of the unit volumes' collision set-up, run on a project on disk.
 *
 * Nothing is decided here: the profile is there when the toolkit logged that it is, and missing when its question about it stands or, where
 * it can show none, is in the log.
 */
namespace CollisionCheck
{
	/** Runs the check behind a write overlay, and the repair, too, to say what it would do: not a byte on disk changes. */
	FCheckReport Look(const FString& Project, const FEditorArguments& Editor);

	/**
	 * Runs the check and, when the profile is missing, the toolkit's repair by the buttons a person would press; then a new editor
	 * checks again. All of it happens behind a write overlay: only a repair that helps is written, just as it was checked.
	 *
	 * The configuration file is locked all the while, so that two repairs at once do not lose each other's lines. A file that could not be
	 * replaced or read is refused before anything is written. What was added is recorded for RepairUndo.
	 *
	 * @param Editor must leave somebody to press buttons: with a user interface, and notifications
	 */
	FCheckReport Repair(const FString& Project, const FEditorArguments& Editor);
}
