// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"

/** velmorant check: looks for the unit volumes' collision profile, adds it when asked to, and takes that back when asked to. */
namespace CheckCommand
{
	EExitStatus Run(const FCheckArguments& Arguments);
}
