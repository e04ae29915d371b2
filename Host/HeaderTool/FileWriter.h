// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	class FDiagnostics;

	struct FOutputFile
	{
		std::string Name; // without folder
		std::string Text;
	};

	/**
	 * Writes generated files into a folder, which is made if needed. A file that has the right bytes already is not touched;
	 * others are replaced at once, never half written. Generated files in the folder that are not among Files go away:
	 * their header has gone, too. @return false, with a report, when something cannot be written.
	 */
	bool WriteOutputs(const std::string& Folder, const std::vector<FOutputFile>& Files, FDiagnostics& Diagnostics);

	/** After a failed run: what earlier runs generated in the folder must not be compiled any more. */
	void RemoveOutputs(const std::string& Folder, FDiagnostics& Diagnostics);
}
