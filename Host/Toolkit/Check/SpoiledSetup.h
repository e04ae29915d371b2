// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** A line of the project's configuration that takes the unit volumes' profile or channel away, which an earlier line brings. */
struct FSpoiler
{
	FString What; // SpoiledSetup::Profile or Channel
	FString File; // full path
	int32 Line = 0; // one-based
	FString Text;
};

namespace SpoiledSetup
{
	inline const TCHAR* const Profile = TEXT("profile");
	inline const TCHAR* const Channel = TEXT("channel");

	/** Whether the running editor's configuration has a profile of that name, after all layers. */
	bool HasProfile();

	/** Looks in all layers of the running editor's configuration. */
	TArray<FSpoiler> Find();
}
