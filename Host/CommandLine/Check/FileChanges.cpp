// Copyright Velmorant. All Rights Reserved.

#include "Check/FileChanges.h"

#include "Check/LineDifference.h"
#include "Check/UnifiedDifference.h"
#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostTextFiles.h"

FFileText FFileText::Read(const FString& Path)
{
	FFileText File;
	File.Path = HostFiles::Resolve(Path);
	File.bExists = HostTextFiles::ReadUtf8(Path, File.Text) == HostFiles::ERead::Done;
	return File;
}

FFileChange FileChanges::Compare(const FFileText& Before, const FFileText& After)
{
	FFileChange Change;
	Change.Path = After.Path;
	Change.bDeleted = Before.bExists && !After.bExists;
	Change.AddedLines = LineDifference::GetAdded(Before.Text, After.Text);
	Change.RemovedLines = LineDifference::GetAdded(After.Text, Before.Text);
	return Change;
}

std::string FileChanges::Describe(const FString& ProjectDir, const FFileText& Before, const FFileText& After)
{
	const FString Folder = HostFiles::Resolve(ProjectDir) + TEXT("/");
	const bool bInProject = After.Path.StartsWith(Folder, ESearchCase::CaseSensitive);
	const std::string Name(TCHAR_TO_UTF8(*(bInProject ? After.Path.RightChop(Folder.Len()) : After.Path)));
	return UnifiedDifference::Make(Name, Before.bExists ? &Before.Text : nullptr, After.bExists ? &After.Text : nullptr);
}
