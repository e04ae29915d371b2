// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ArgumentTable.h"

/** What makes shells complete the program's arguments. */
namespace Completion
{
	std::vector<std::string> GetShells();

	/** @param Shell one of GetShells() */
	std::string Make(const CLI::App& App, const std::string& Shell);
}
