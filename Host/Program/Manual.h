// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ArgumentTable.h"

/** The program's manual page. */
namespace Manual
{
	/** @param ScriptLines how each command of a script is written */
	std::string Make(const CLI::App& App, const std::vector<std::string>& ScriptLines);
}
