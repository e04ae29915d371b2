// Copyright Velmorant. All Rights Reserved.

#include "Config/IniFile.h"

#include "Config/IniSyntax.h"
#include "Files/TextCoding.h"
#include "HostTextFiles.h"

#include <algorithm>

namespace IniFile
{
	/** Walks lines that end with CRLF, LF or a lone CR. */
	class FLines
	{
	public:
		FLines(std::string_view InText, FIniFile::FLine First)
			: Text(InText)
			, Start(First.Begin)
			, Next(First.Begin)
			, Number(First.Number - 1)
		{
		}

		bool Advance()
		{
			if (Next >= Text.size())
			{
				return false;
			}
			Start = Next;
			++Number;
			const size_t End = std::min(Text.find('\n', Start), Text.size());
			Next = std::min(End + 1, Text.size());
			Line = Text.substr(Start, End - Start);
			const size_t Return = Line.find('\r');
			if (Return != std::string_view::npos)
			{
				Next = Start + Return + 1 < End ? Start + Return + 1 : Next;
				Line = Line.substr(0, Return);
			}
			return true;
		}

		std::string_view Get() const { return Line; }
		FIniFile::FLine GetPlace() const { return {Number, Start}; }
		FIniFile::FLine GetNextPlace() const { return {Number + 1, Next}; }

	private:
		std::string_view Text;
		std::string_view Line;
		size_t Start;
		size_t Next;
		int32 Number; // of the current line
	};

	/** The current line with those that continue it. @param Joined holds the result when there are any */
	std::string_view JoinContinued(FLines& Lines, std::string& Joined)
	{
		if (!IniSyntax::IsContinued(Lines.Get()))
		{
			return Lines.Get();
		}
		Joined = Lines.Get();
		bool bContinued = true;
		while (bContinued)
		{
			Joined.pop_back(); // the backslash
			bContinued = Lines.Advance();
			Joined += bContinued ? Lines.Get() : std::string_view();
			bContinued = bContinued && IniSyntax::IsContinued(Lines.Get());
		}
		return Joined;
	}
}

std::string FIniFile::FoldName(const FString& Name)
{
	std::string Utf8;
	TextCoding::EncodeUtf8(std::u16string_view(*Name, static_cast<size_t>(Name.Len())), Utf8);
	return IniSyntax::Fold(std::string_view(Utf8));
}

std::unique_ptr<FIniFile> FIniFile::Read(const FString& File)
{
	std::unique_ptr<FIniFile> Result = std::make_unique<FIniFile>();
	Result->Path = File;
	switch (HostTextFiles::ReadUtf8(File, Result->Text))
	{
		case HostFiles::ERead::Missing:
			return nullptr;
		case HostFiles::ERead::Failed:
			Result->Text.clear();
			break;
		case HostFiles::ERead::Done:
			Result->FindSections();
			break;
	}
	return Result;
}

void FIniFile::FindSections()
{
	FRange* Open = nullptr;
	bool bContinued = false;
	for (IniFile::FLines Lines(Text, FLine{1, 0}); Lines.Advance();)
	{
		const std::string_view Line = Lines.Get();
		std::string_view Name;
		if (!bContinued && IniSyntax::ParseHeader(Line, Name))
		{
			if (Open != nullptr)
			{
				Open->End = Lines.GetPlace().Begin;
			}
			std::vector<FRange>& Ranges = Sections[IniSyntax::Fold(Name)];
			Ranges.push_back(FRange{Lines.GetNextPlace(), Text.size()});
			Open = &Ranges.back();
		}
		bContinued = IniSyntax::IsContinued(Line);
	}
}

std::vector<FIniFile::FEntry> FIniFile::ReadSection(const std::string& Section) const
{
	std::vector<FEntry> Result;
	const auto Found = Sections.find(Section);
	if (Found == Sections.end())
	{
		return Result;
	}
	for (const FRange& Range : Found->second)
	{
		std::string Joined;
		IniFile::FLines Lines(std::string_view(Text).substr(0, Range.End), Range.First);
		while (Lines.Advance())
		{
			const FLine Place = Lines.GetPlace();
			IniSyntax::TEntry<char> Entry;
			if (IniSyntax::ParseEntry(IniFile::JoinContinued(Lines, Joined), Entry))
			{
				Result.push_back(FEntry{std::string(Entry.Key), IniSyntax::Unquote(Entry.Value), Place});
			}
		}
	}
	return Result;
}

std::string_view FIniFile::GetText(const FLine& Line) const
{
	IniFile::FLines Lines(Text, Line);
	return Lines.Advance() ? Lines.Get() : std::string_view();
}
