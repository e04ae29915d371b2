// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** The lines of a project's DefaultEngine.ini that unit volumes need: their collision profile and their trace channel. */
namespace UnitVolumeCollisionLines
{
	inline const TCHAR* const Section = TEXT("/Script/Engine.CollisionProfile");
	inline const TCHAR* const ProfileName = TEXT("UnitVolume");

	/** Whether the lines of the section have the channel. The whole line counts, blanks included; only letter case does not. */
	bool HaveChannel(const TArray<FString>& SectionLines);

	/**
	 * Inserts profile and channel behind the last profile line of a whole file. Never looks whether they are there already, and
	 * inserts nothing where no profile line is.
	 */
	void Insert(TArray<FString>& FileLines);
}
