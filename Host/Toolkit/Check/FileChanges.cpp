// Copyright Velmorant. All Rights Reserved.

#include "Check/FileChanges.h"

#include "Check/UnifiedDifference.h"
#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "LineDifference.h"

#include <optional>
#include <string_view>

namespace FileChanges
{
	void Append(const LineDifference::FLines& Lines, size_t Begin, size_t End, TArray<FString>& Out)
	{
		for (size_t Index = Begin; Index < End; ++Index)
		{
			Out.Add(LineDifference::ToString(Lines[Index]));
		}
	}
}

FFileText FFileText::Read(const FString& Path)
{
	FFileText File;
	File.Path = HostFiles::Resolve(Path);
	File.bExists = HostTextFiles::ReadUtf8(Path, File.Text) == HostFiles::ERead::Done;
	return File;
}

const FFileText& FileChanges::Find(const TArray<FFileText>& Files, const FFileText& File)
{
	const FFileText* Found = Files.FindByPredicate([&File](const FFileText& Each) { return Each.Path.Equals(File.Path); });
	return Found != nullptr ? *Found : File;
}

FFileChange FileChanges::Compare(const FFileText& Before, const FFileText& After)
{
	FFileChange Change;
	Change.Path = After.Path;
	Change.bDeleted = Before.bExists && !After.bExists;
	std::string_view OldText = Before.Text.Get();
	std::string_view NewText = After.Text.Get();
	LineDifference::DropCommonEnds(OldText, NewText);
	const LineDifference::FLines Old = LineDifference::Split(OldText);
	const LineDifference::FLines New = LineDifference::Split(NewText);
	for (const LineDifference::FEdit& Edit : LineDifference::FindEdits(Old, New))
	{
		Append(Old, Edit.OldBegin, Edit.OldEnd, Change.RemovedLines);
		Append(New, Edit.NewBegin, Edit.NewEnd, Change.AddedLines);
	}
	return Change;
}

std::string FileChanges::Describe(const FString& ProjectDir, const FFileText& Before, const FFileText& After)
{
	const FString Folder = HostFiles::Resolve(ProjectDir) + TEXT("/");
	const bool bInProject = After.Path.StartsWith(Folder, ESearchCase::CaseSensitive);
	const std::string Name(TCHAR_TO_UTF8(*(bInProject ? After.Path.RightChop(Folder.Len()) : After.Path)));
	using FOptionalText = std::optional<std::string_view>;
	return UnifiedDifference::Make(Name, Before.bExists ? FOptionalText(Before.Text.Get()) : FOptionalText(), After.bExists ? FOptionalText(After.Text.Get()) : FOptionalText());
}
