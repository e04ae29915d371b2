// Copyright Velmorant. All Rights Reserved.

#include "Model.h"

#include "TextTools.h"

#include <algorithm>

namespace HeaderTool
{
	void FMetaData::Set(const std::string& Key, const std::string& Value)
	{
		for (FMetaEntry& Entry : Entries)
		{
			if (EqualsIgnoringCase(Entry.Key, Key))
			{
				Entry.Value = Value;
				return;
			}
		}
		Entries.push_back({Key, Value});
	}

	const std::string* FMetaData::Find(const std::string& Key) const
	{
		for (const FMetaEntry& Entry : Entries)
		{
			if (EqualsIgnoringCase(Entry.Key, Key))
			{
				return &Entry.Value;
			}
		}
		return nullptr;
	}

	bool FMetaData::IsTrue(const std::string& Key) const
	{
		const std::string* Value = Find(Key);
		return Value && (Value->empty() || EqualsIgnoringCase(*Value, "true"));
	}

	void FFlagNames::Add(const std::string& Flag)
	{
		if (!Has(Flag))
		{
			Names.push_back(Flag);
		}
	}

	bool FFlagNames::Has(const std::string& Flag) const
	{
		return std::find(Names.begin(), Names.end(), Flag) != Names.end();
	}

	std::string FFlagNames::ToExpression() const
	{
		return Names.empty() ? "0" : Join(Names, " | ");
	}

	std::string FTypeUse::Spell() const
	{
		std::string Result = (bConst ? "const " : "") + Name;
		if (!Arguments.empty())
		{
			std::vector<std::string> Spelled;
			for (const FTypeUse& Argument : Arguments)
			{
				Spelled.push_back(Argument.Spell());
			}
			Result += "<" + Join(Spelled, ", ") + ">";
		}
		return Result + std::string(static_cast<size_t>(Pointers), '*') + (bRvalue ? "&&" : bReference ? "&"
																									   : "");
	}

	std::string FTypeUse::SpellValue(bool bKeepPointeeConst) const
	{
		std::string Result = (bConst && Pointers > 0 && bKeepPointeeConst ? "const " : "") + Qualifier + Name;
		if (!Arguments.empty())
		{
			std::vector<std::string> Spelled;
			for (const FTypeUse& Argument : Arguments)
			{
				const bool bConstObject = bKeepPointeeConst && Argument.bConst && Argument.Pointers == 0;
				Spelled.push_back((bConstObject ? "const " : "") + Argument.SpellValue(bKeepPointeeConst));
			}
			Result += "<" + Join(Spelled, ", ") + ">";
		}
		return Result + std::string(static_cast<size_t>(Pointers), '*');
	}

	std::string FHeader::BaseName() const
	{
		const size_t Slash = IncludePath.find_last_of('/');
		const std::string File = Slash == std::string::npos ? IncludePath : IncludePath.substr(Slash + 1);
		return File.substr(0, File.find('.'));
	}
}
