// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Surface.h"

#include <map>
#include <string>
#include <vector>

namespace SurfaceCheck
{
	/** What stays although nobody needs it, each with its reason; and how much is still to be removed. */
	class FExemptions
	{
	public:
		static constexpr size_t Most = 20;

		/**
		 * One a line: the name as the check prints it, " : ", the reason. Lines that start with '#' are comments.
		 * "still to remove: NUMBER" allows exactly so many findings more. Throws std::runtime_error with path and line.
		 */
		FExemptions(const std::string& InPath, const std::string& Text);

		/** The problems that Findings leave; empty when all is well. An exemption that fits nothing is one, too. */
		std::vector<std::string> GetProblems(const std::vector<FFinding>& Findings) const;

	private:
		void AddLine(const std::string& Line, int Number);

		std::string Path;
		std::map<std::string, std::string> Reasons;
		size_t StillToRemove = 0;
	};
}
