// Copyright Velmorant. All Rights Reserved.

#include "HostProject.h"

#include "DescriptorReader.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "Misc/Paths.h"

namespace HostProject
{
	FString Find(const FString& FileOrFolder, bool* OutUnread)
	{
		const FString Full = FPaths::ConvertRelativePathToFull(FileOrFolder);
		if (!HostFiles::DirectoryExists(Full))
		{
			const bool bProject = HostFiles::FileExists(Full) && FPaths::GetExtension(Full) == TEXT("uproject");
			if (!bProject)
			{
				HostProblems::Report(Full, 0, HostFiles::FileExists(Full) ? FString(TEXT("the file is no .uproject")) : HostFiles::ExplainMissing(FileOrFolder, TEXT("there is no such project")), TEXT("Name a .uproject file or the folder that holds one."));
			}
			return bProject ? Full : FString();
		}
		const int32 NumProblems = HostProblems::GetAll().Num();
		const TArray<FString> Projects = HostFiles::FindFilesIn(Full, TEXT(".uproject"));
		const bool bUnread = HostProblems::GetAll().Num() > NumProblems;
		if (OutUnread != nullptr)
		{
			*OutUnread = bUnread;
		}
		if (bUnread)
		{
			return FString();
		}
		if (Projects.Num() != 1)
		{
			HostProblems::Report(Full, 0, Projects.IsEmpty() ? TEXT("there is no .uproject in this folder") : TEXT("there is more than one .uproject in this folder"), TEXT("Name the .uproject file itself."));
			return FString();
		}
		return Projects[0];
	}

	bool Read(const FString& File, FHostProject& OutProject)
	{
		const std::unique_ptr<FDescriptorReader> Reader = FDescriptorReader::Open(File);
		if (Reader == nullptr)
		{
			return false;
		}
		Reader->Read("EngineAssociation", OutProject.EngineAssociation);
		Reader->Read("Category", OutProject.Category);
		Reader->Read("Description", OutProject.Description);
		Reader->ReadModules(OutProject.Modules);
		Reader->ReadPlugins(OutProject.Plugins);
		return Reader->IsSound();
	}
}
