// Copyright Velmorant. All Rights Reserved.

#pragma once

/** Which unit of the service a unit volume stands for. */
namespace UnitAssignment
{
	/**
	 * Gives each unit volume of the open level the identity of a unit of the target unit group, from the last unit on, until either
	 * runs out.
	 * @return false when there is no target, no unit or no volume.
	 */
	bool AssignTargetUnits();
}
