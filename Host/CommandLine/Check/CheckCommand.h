// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"

/** velmorant check: looks for the unit volumes' collision profile, and adds it when asked to. */
namespace CheckCommand
{
	EExitStatus Run(const FCheckArguments& Arguments);
}
