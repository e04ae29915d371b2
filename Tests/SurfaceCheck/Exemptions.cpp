// Copyright Velmorant. All Rights Reserved.

#include "Exemptions.h"

#include <set>
#include <sstream>
#include <stdexcept>

namespace SurfaceCheck
{
	FExemptions::FExemptions(const std::string& InPath, const std::string& Text)
		: Path(InPath)
	{
		std::istringstream Lines(Text);
		std::string Line;
		for (int Number = 1; std::getline(Lines, Line); ++Number)
		{
			if (!Line.empty() && Line[0] != '#')
			{
				AddLine(Line, Number);
			}
		}
		if (Reasons.size() > Most)
		{
			throw std::runtime_error(Path + ": " + std::to_string(Reasons.size()) + " exemptions; at most " + std::to_string(Most) + " are allowed");
		}
	}

	void FExemptions::AddLine(const std::string& Line, int Number)
	{
		const std::string Place = Path + "(" + std::to_string(Number) + "): ";
		const std::string Count = "still to remove: ";
		if (Line.starts_with(Count))
		{
			const std::string Digits = Line.substr(Count.size());
			if (Digits.empty() || Digits.size() > 6 || Digits.find_first_not_of("0123456789") != std::string::npos)
			{
				throw std::runtime_error(Place + "'" + Digits + "' is no number");
			}
			StillToRemove = std::stoul(Digits);
			return;
		}
		const size_t Separator = Line.find(" : ");
		if (Separator == std::string::npos || Separator + 3 >= Line.size())
		{
			throw std::runtime_error(Place + "expected 'name : reason'");
		}
		if (!Reasons.emplace(Line.substr(0, Separator), Line.substr(Separator + 3)).second)
		{
			throw std::runtime_error(Place + "is exempt already");
		}
	}

	std::vector<std::string> FExemptions::GetProblems(const std::vector<FFinding>& Findings) const
	{
		std::vector<std::string> Problems;
		std::set<std::string> Met;
		for (const FFinding& Finding : Findings)
		{
			if (Reasons.contains(Finding.Name))
			{
				Met.insert(Finding.Name);
			}
			else
			{
				Problems.push_back(Finding.GetText());
			}
		}
		const size_t Left = Problems.size();
		if (Left == StillToRemove)
		{
			Problems.clear();
		}
		else if (Left < StillToRemove)
		{
			Problems = {Path + ": only " + std::to_string(Left) + " are still to remove; say so, that the number never rises again"};
		}
		for (const auto& [Name, Reason] : Reasons)
		{
			if (!Met.contains(Name))
			{
				Problems.push_back(Path + ": " + Name + " is needed, or gone; remove its exemption");
			}
		}
		return Problems;
	}
}
