// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

class FTemporaryFolder;

/** A made-up property whose start level holds as many unit volumes as wanted, each assigned to a unit of its own. */
namespace LargeProperty
{
	/** Writes Large.uproject and what belongs to it. No editor may run. */
	void Write(const FTemporaryFolder& Folder, int64 NumUnits);
}
