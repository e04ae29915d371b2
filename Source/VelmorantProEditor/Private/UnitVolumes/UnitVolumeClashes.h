// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FUnitVolumeUniqueIdentifier;

/**
 * Which unit volumes the running model could not tell apart: those with the same integer and the same key code, letter case aside.
 * The first of them with a valid key code claims the others, wherever they stand; volumes without one are claimed by nobody.
 */
namespace UnitVolumeClashes
{
	/** Volumes that clash. By key code alone, on purpose: clashes of one key code and different integers share a group. */
	struct FGroup
	{
		/** As much of the first claimant's key code as a name holds. */
		FName Keycode;

		/** Indices of the volumes, each once: each claimant, and behind it those that it claims, in their order. */
		TArray<int32> Volumes;
	};

	/** @return the groups in the order of their first claimants; in time that grows with the number of volumes */
	TArray<FGroup> Find(const TArray<const FUnitVolumeUniqueIdentifier*>& Identifiers);
}
