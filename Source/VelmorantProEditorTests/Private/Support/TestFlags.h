// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AutomationTest.h"

namespace VelmorantTests
{
	/** All tests of this module need an editor, and none a user or a screen. */
	static constexpr EAutomationTestFlags Flags = EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter;
}
