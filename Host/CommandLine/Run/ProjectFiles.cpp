// Copyright Velmorant. All Rights Reserved.

#include "Run/ProjectFiles.h"

#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"

FProjectFiles::FProjectFiles(const FString& InProjectDir)
	: ProjectDir(InProjectDir)
{
	for (const FString& File : HostFiles::FindFilesIn(ProjectDir + TEXT("Config"), TEXT(".ini")))
	{
		HostTextFiles::ReadUtf8(File, FirstTexts[TCHAR_TO_UTF8(*File)]);
	}
	HostProblems::Clear(); // the editor reads them again, and tells
}

FString FProjectFiles::Find(const FString& Relative) const
{
	const FString Full = FPaths::ConvertRelativePathToFull(FPaths::IsRelative(Relative) ? ProjectDir + Relative : Relative);
	const bool bInProject = Full.StartsWith(ProjectDir, ESearchCase::CaseSensitive);
	const bool bLeadsOut = !HostFiles::Resolve(Full).StartsWith(HostFiles::Resolve(ProjectDir) + TEXT("/"), ESearchCase::CaseSensitive);
	return bInProject && !bLeadsOut ? Full : FString();
}

FString FProjectFiles::MakeRelative(const FString& Path) const
{
	return Path.StartsWith(ProjectDir, ESearchCase::CaseSensitive) ? Path.RightChop(ProjectDir.Len()) : Path;
}

std::string FProjectFiles::GetFirstText(const FString& Path) const
{
	const auto Found = FirstTexts.find(TCHAR_TO_UTF8(*Path));
	return Found != FirstTexts.end() ? Found->second : std::string();
}
