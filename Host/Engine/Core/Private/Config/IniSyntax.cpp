// Copyright Velmorant. All Rights Reserved.

#include "Config/IniSyntax.h"

namespace IniSyntax
{
	std::string Quote(std::string_view Value)
	{
		const bool bBlankEnds = Trim(Value).size() != Value.size();
		const bool bBreaks = Value.find_first_of("\n\r") != std::string_view::npos;
		const bool bMisread = !Value.empty() && (Value.front() == '"' || Value.back() == '\\');
		if (!bBlankEnds && !bBreaks && !bMisread)
		{
			return std::string(Value);
		}
		std::string Result = "\"";
		for (const char Character : Value)
		{
			if (Character == '\r')
			{
				continue; // there is no way to write it; a line break reads back as \n
			}
			Result += Character == '"' || Character == '\\' || Character == '\n' ? "\\" : "";
			Result += Character == '\n' ? 'n' : Character;
		}
		return Result + '"';
	}
}
