// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** What the program was asked for. */
	struct FOptions
	{
		std::string Module;
		std::string OutputFolder;
		std::string Manifest;
		std::vector<std::string> References; // manifests of the modules that this one depends on
		bool bHelp = false;
	};

	/**
	 * The whole program: reads the manifests and all headers they name, checks, and writes the generated files only if nothing was wrong.
	 * @param Arguments without the program's name
	 * @return exit status: 0 done, 1 something is wrong with the input or the output could not be written, 2 bad usage
	 */
	int RunHeaderTool(const std::vector<std::string>& Arguments, std::ostream& Out, std::ostream& Err);
}
