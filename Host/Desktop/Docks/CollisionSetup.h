// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Check/SpoiledSetup.h"
#include "Check/ToolkitVerdict.h"

#include <vector>

/** The running editor's collision profiles beside what unit volumes need. Decides nothing: verdict and spoilers are the check's. */
struct FCollisionSetup
{
	struct FProfile
	{
		QString Name;
		QString ObjectType;
		QString Responses; // to other channels, as far as they differ from the channels' own
		bool bOfUnitVolumes = false;
	};

	EToolkitVerdict Verdict = EToolkitVerdict::None; // None: the question was put off
	bool bHasProfile = false;
	std::vector<FProfile> Profiles;
	TArray<FSpoiler> Spoilers;

	static FCollisionSetup Read();

	/** Has the toolkit look again; its notification offers to repair what is missing. */
	static void Check();
};
