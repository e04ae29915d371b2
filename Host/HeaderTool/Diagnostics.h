// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** One problem: the place as the caller named the file, what is wrong, and what to do about it. */
	struct FDiagnostic
	{
		std::string Path;
		int Line = 0; // 1-based; 0 when the whole file is meant
		std::string Message;
	};

	/** Collects problems, so that one run reports all of them. Never throws, never prints on its own. */
	class FDiagnostics
	{
	public:
		void Error(const std::string& Path, int Line, const std::string& Message);

		bool HasErrors() const { return !Errors.empty(); }
		const std::vector<FDiagnostic>& GetErrors() const { return Errors; }

		/** Prints `path(line): error: message`, files in the order they were read, lines ascending, repeats left out. */
		void Print(std::ostream& Out) const;

	private:
		std::vector<FDiagnostic> Errors;
	};
}
