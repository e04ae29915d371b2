// Copyright Velmorant. All Rights Reserved.

#include "Config/IniEntries.h"

#include "Config/IniSyntax.h"

FIniEntries::FIniEntries(std::string_view InText, FIniLine First)
	: Text(InText)
	, Lines(InText, First.Begin)
	, NextNumber(First.Number)
{
}

bool FIniEntries::Advance()
{
	if (!Lines.Advance())
	{
		return false;
	}
	FirstLine = Lines.Get();
	Place = {NextNumber++, Lines.GetBegin()};
	while (IniSyntax::IsContinued(Lines.Get()) && Lines.Advance())
	{
		++NextNumber;
	}
	return true;
}

std::string_view FIniEntries::GetWhole()
{
	if (!IniSyntax::IsContinued(FirstLine))
	{
		return FirstLine;
	}
	Joined.clear();
	for (FTextLines Part(Text.substr(0, Lines.GetNextBegin()), Place.Begin); Part.Advance();)
	{
		Joined += Part.Get().substr(0, Part.Get().size() - (IniSyntax::IsContinued(Part.Get()) ? 1 : 0));
	}
	return Joined;
}
