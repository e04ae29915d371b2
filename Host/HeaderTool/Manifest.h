// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;

	struct FManifestHeader
	{
		std::string IncludePath;
		std::string Path;
	};

	/** The reflected headers of one module. */
	struct FManifest
	{
		std::string Module;
		std::vector<FManifestHeader> Headers;
	};

	/** The whole file; false, with a report, when it cannot be read. */
	bool ReadFile(const std::string& Path, std::string& OutText, FDiagnostics& Diagnostics);

	/**
	 * Reads lines `module NAME` and `header INCLUDE_PATH FILE` (FILE runs to the end of the line, blanks included).
	 * False, with a report, when the file cannot be read or understood.
	 */
	bool ReadManifest(const std::string& Path, FManifest& OutManifest, FDiagnostics& Diagnostics);
}
