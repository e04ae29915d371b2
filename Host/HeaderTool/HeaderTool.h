// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace HeaderTool
{
	/**
	 * The whole program: reads the manifests and all headers they name, checks, and writes the generated files only if nothing was wrong.
	 * @param Words the command line without the program's name
	 * @return exit status: 0 done, 1 something is wrong with the input or the output could not be written, 2 bad usage
	 */
	int RunHeaderTool(const std::vector<std::string>& Words, std::ostream& Out, std::ostream& Err);
}
