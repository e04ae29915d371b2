// Copyright Velmorant. All Rights Reserved.

#include "Config/IniFile.h"

#include "Config/IniEntries.h"
#include "Config/IniSyntax.h"
#include "Containers/StringConv.h"
#include "Files/NativePath.h"
#include "Files/TextCoding.h"
#include "HostState.h"

#include <set>

namespace IniFile
{
	THostState<std::set<std::string>> Failed; // resolved paths
}

std::string FIniFile::FoldName(const FString& Name)
{
	std::string Utf8;
	TextCoding::EncodeUtf8(std::u16string_view(*Name, static_cast<size_t>(Name.Len())), Utf8);
	return IniSyntax::Fold(Utf8);
}

std::shared_ptr<const FIniFile> FIniFile::Read(const FString& File)
{
	static std::unordered_map<std::string, std::weak_ptr<const FIniFile>> Known; // longer than an editor: the next one reads the same files
	std::shared_ptr<FIniFile> Result = std::make_shared<FIniFile>();
	Result->Path = File;
	switch (HostTextFiles::ReadUtf8(File, Result->Text))
	{
		case HostFiles::ERead::Missing:
			return nullptr;
		case HostFiles::ERead::Failed:
			IniFile::Failed->insert(NativePath::Resolve(File));
			break;
		case HostFiles::ERead::Done:
			break;
	}
	std::weak_ptr<const FIniFile>& Before = Known[TCHAR_TO_UTF8(*File)];
	const std::shared_ptr<const FIniFile> Same = Before.lock();
	if (Same != nullptr && Same->Text.IsShared(Result->Text))
	{
		return Same;
	}
	Result->FindSections();
	Before = Result;
	return Result;
}

bool FIniFile::HasFailed(const FString& File)
{
	return IniFile::Failed->contains(NativePath::Resolve(File));
}

void FIniFile::FindSections()
{
	FRange* Open = nullptr;
	for (FIniEntries Entries(GetText(), FLine{1, 0}); Entries.Advance();)
	{
		std::string_view Name;
		if (IniSyntax::ParseHeader(Entries.GetFirstLine(), Name))
		{
			if (Open != nullptr)
			{
				Open->End = Entries.GetPlace().Begin;
			}
			std::vector<FRange>& Ranges = Sections[IniSyntax::Fold(Name)];
			Ranges.push_back(FRange{Entries.GetNextPlace(), GetText().size()});
			Open = &Ranges.back();
		}
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
		FIniEntries Entries(GetText().substr(0, Range.End), Range.First);
		while (Entries.Advance())
		{
			IniSyntax::FEntry Entry;
			if (IniSyntax::ParseEntry(Entries.GetWhole(), Entry))
			{
				Result.push_back(FEntry{std::string(Entry.Key), IniSyntax::Unquote(Entry.Value), Entries.GetPlace()});
			}
		}
	}
	return Result;
}

std::string_view FIniFile::GetText(const FLine& Line) const
{
	FTextLines Lines(GetText(), Line.Begin);
	return Lines.Advance() ? Lines.Get() : std::string_view();
}
