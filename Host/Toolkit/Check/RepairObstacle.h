// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/CheckReport.h"
#include "Check/CheckRun.h"

/** Why the toolkit's repair does not help a project, and what a person can do instead. */
namespace RepairObstacle
{
	/**
	 * Fills in the report's reason and, where that is a way out, the lines to add by hand: those that are not there already.
	 * @param IniFile the project's DefaultEngine.ini, which is as it was before the run
	 */
	void Explain(const FCheckRun& Run, const FFileText& IniFile, FCheckReport& Report);

	/** Lines of a file that the run changed in its overlay, numbered as they are on disk. */
	TArray<FSpoiler> NumberAsOnDisk(const TArray<FSpoiler>& Spoilers, const FFileText& OnDisk, const FFileText& InOverlay);
}
