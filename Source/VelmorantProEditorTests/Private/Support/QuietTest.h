// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AutomationTest.h"

/** A test that makes the editor log warnings and errors on purpose, whose words and number differ between editors. */
class FVelmorantQuietTest : public FAutomationTestBase
{
public:
	using FAutomationTestBase::FAutomationTestBase;

	virtual bool SuppressLogErrors() override { return true; }
	virtual bool SuppressLogWarnings() override { return true; }
};
