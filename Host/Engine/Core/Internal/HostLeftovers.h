// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

/** What writes leave behind that were ended half way: temporary files, each as private or public as the file it was to become. */
namespace HostLeftovers
{
	/**
	 * Removes those of this user in a folder and all beneath, links to other folders left out. What somebody is writing just now stays, and so
	 * does what only looks alike. With an overlay it does nothing: the disk is not touched then.
	 */
	void RemoveBelow(const FString& Directory);
}
