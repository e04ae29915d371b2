// Copyright Velmorant. All Rights Reserved.

#pragma once

/** The project's collision set-up for unit volumes. */
namespace UnitVolumeCollision
{
	/** Asks the designer whether to add the lines that the set-up needs, when profile or channel is missing. */
	void Check();

	/** Inserts the lines into the project's DefaultEngine.ini, whatever is there. */
	void AddLines();
}
