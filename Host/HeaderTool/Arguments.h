// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** What the program was asked for. */
	struct FArguments
	{
		std::string Module;
		std::string OutputFolder;
		std::string Manifest;
		std::vector<std::string> References; // manifests of the modules that this one depends on
	};

	/**
	 * Reads the command line, without the program's name. Prints the help that was asked for, or what is wrong.
	 * @return the exit status if the program ends here: 0 after the help, 2 for bad usage
	 */
	std::optional<int> ParseArguments(std::vector<std::string> Words, FArguments& OutArguments, std::ostream& Out, std::ostream& Err);
}
