// Copyright Velmorant. All Rights Reserved.

#include "HostFiles.h"
#include "HostStaging.h"
#include "Install/InstallFolders.h"
#include "Misc/Paths.h"
#include "Install/ModuleInstall.h"

namespace InstallApply
{
	bool IsDescriptor(const FInstallFile& File)
	{
		return File.Path.EndsWith(TEXT(".uplugin"));
	}

	bool Prepare(const FInstallPlan& Plan, const FString& Stage)
	{
		for (const FInstallFile& File : Plan.Files)
		{
			if (!IsDescriptor(File) && !HostFiles::Write(Stage / File.Path, File.Bytes))
			{
				return false;
			}
		}
		return true;
	}

	/** A module of which nothing was there comes as a whole, in one step. */
	bool PutInPlace(const FInstallPlan& Plan, const FString& Stage)
	{
		for (const FString& Folder : HostFiles::FindDirectories(Stage / TEXT("Source")))
		{
			const FString Target = Plan.PluginFolder / TEXT("Source") / FPaths::GetCleanFilename(Folder);
			if (!HostFiles::DirectoryExists(Target) && !HostStaging::Move(Folder, Target))
			{
				return false;
			}
		}
		for (const FInstallFile& File : Plan.Files)
		{
			const FString Prepared = Stage / File.Path;
			if (HostFiles::FileExists(Prepared) && !HostStaging::Move(Prepared, Plan.PluginFolder / File.Path))
			{
				return false;
			}
		}
		return true;
	}

	bool WriteDescriptor(const FInstallPlan& Plan)
	{
		const FInstallFile* const Descriptor = Plan.Files.FindByPredicate(IsDescriptor);
		return Descriptor == nullptr || HostFiles::Write(Plan.PluginFolder / Descriptor->Path, Descriptor->Bytes);
	}
}

bool ModuleInstall::Apply(const FInstallPlan& Plan)
{
	const FString Stage = InstallFolders::GetStage(Plan.PluginFolder);
	const bool bDone = HostStaging::DeleteDirectory(Stage) && InstallApply::Prepare(Plan, Stage) && InstallApply::PutInPlace(Plan, Stage) && InstallApply::WriteDescriptor(Plan);
	return HostStaging::DeleteDirectory(Stage) && bDone;
}
