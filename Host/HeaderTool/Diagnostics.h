// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Place.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** One problem: the place as the caller named the file, what is wrong, and what to do about it. */
	struct FDiagnostic
	{
		std::string Path;
		FPlace Place; // unset when the whole file is meant
		std::string Message;
	};

	/** Collects problems, so that one run reports all of them. Never throws, never prints on its own. */
	class FDiagnostics
	{
	public:
		void Error(const std::string& Path, const FPlace& Place, const std::string& Message);

		bool HasErrors() const { return !Errors.empty(); }
		const std::vector<FDiagnostic>& GetErrors() const { return Errors; }

		/** Prints `path(line,column): error: message`, files in the order they were read, places ascending, repeats left out. */
		void Print(std::ostream& Out) const;

	private:
		std::vector<FDiagnostic> Errors;
	};
}
