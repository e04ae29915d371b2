// Copyright Velmorant. All Rights Reserved.

#include "Config/IniSyntax.h"

namespace IniSyntax
{
	std::u16string Quote(std::u16string_view Value)
	{
		const bool bBlankEnds = Trim(Value).size() != Value.size();
		const bool bBreaks = Value.find_first_of(u"\n\r") != std::u16string_view::npos;
		const bool bMisread = !Value.empty() && (Value.front() == u'"' || Value.back() == u'\\');
		if (!bBlankEnds && !bBreaks && !bMisread)
		{
			return std::u16string(Value);
		}
		std::u16string Result = u"\"";
		for (const char16_t Character : Value)
		{
			if (Character == u'\r')
			{
				continue; // there is no way to write it; a line break reads back as \n
			}
			Result += Character == u'"' || Character == u'\\' || Character == u'\n' ? u"\\" : u"";
			Result += Character == u'\n' ? u'n' : Character;
		}
		return Result + u'"';
	}
}
