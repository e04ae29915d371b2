// Copyright Velmorant. All Rights Reserved.

#include "Model.h"

#include "TextTools.h"

#include <algorithm>

namespace HeaderTool
{
	void FMetaData::Set(const std::string& Key, const std::string& Value, const FPlace& Place)
	{
		for (FMetaEntry& Entry : Entries)
		{
			if (EqualsIgnoringCase(Entry.Key, Key))
			{
				Entry.Value = Value;
				Entry.Place = Place;
				return;
			}
		}
		Entries.push_back({Key, Value, Place});
	}

	const FMetaEntry* FMetaData::Find(const std::string& Key) const
	{
		for (const FMetaEntry& Entry : Entries)
		{
			if (EqualsIgnoringCase(Entry.Key, Key))
			{
				return &Entry;
			}
		}
		return nullptr;
	}

	bool FMetaData::IsTrue(const std::string& Key) const
	{
		const FMetaEntry* Entry = Find(Key);
		return Entry && (Entry->Value.empty() || EqualsIgnoringCase(Entry->Value, "true"));
	}

	void FFlagNames::Add(const std::string& Flag, const FPlace& Place)
	{
		if (!Has(Flag))
		{
			Flags.push_back({Flag, Place});
		}
	}

	FPlace FFlagNames::PlaceOf(const std::string& Flag) const
	{
		const FFlag* Found = Find(Flag);
		return Found ? Found->Place : FPlace();
	}

	std::string FFlagNames::ToExpression() const
	{
		std::vector<std::string> Names;
		for (const FFlag& Flag : Flags)
		{
			Names.push_back(Flag.Name);
		}
		return Names.empty() ? "0" : Join(Names, " | ");
	}

	const FFlagNames::FFlag* FFlagNames::Find(const std::string& Name) const
	{
		const auto Found = std::find_if(Flags.begin(), Flags.end(), [&Name](const FFlag& Flag) { return Flag.Name == Name; });
		return Found != Flags.end() ? &*Found : nullptr;
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
		return Result + std::string(static_cast<size_t>(Pointers), '*') + (bReference ? "&" : "") + (bRvalue ? "&" : "");
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
