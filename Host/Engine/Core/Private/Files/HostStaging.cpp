// Copyright Velmorant. All Rights Reserved.

#include "HostStaging.h"

#include "Files/AtomicReplace.h"
#include "Files/NativePath.h"
#include "Files/ReadOnlyFiles.h"
#include "Files/WriteRules.h"
#include "HostFiles.h"

#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace HostStaging
{
	using namespace WriteRules;

	bool Move(const FString& From, const FString& To)
	{
		checkf(!HostFiles::HasOverlay(), TEXT("an overlay cannot move files"));
		const std::string Source = NativePath::Resolve(From);
		const std::string Target = NativePath::Resolve(To);
		const HostFiles::FLock Lock(To);
		FOnDisk OnDisk(Target);
		const bool bMayReplace = ReadOnlyFiles::AskToOpen(Target, OnDisk) && MayReplace(Target, OnDisk, HostFiles::EReadOnly::Refuse);
		if (!bMayReplace || !MakeFolderOrReport(NativePath::FolderOf(Target), Target))
		{
			return false;
		}
		const int Error = AtomicReplace::Move(Source, Target, OnDisk.bExists ? &OnDisk.Status : nullptr);
		if (Error != 0)
		{
			ReportNotWritten(Target, Describe(TEXT("what was prepared for this place cannot be put there"), Error), TEXT("Check the permissions of its folder."));
		}
		return Error == 0;
	}

	bool DeleteDirectory(const FString& Path)
	{
		checkf(!HostFiles::HasOverlay(), TEXT("an overlay cannot delete folders"));
		const std::string Folder = NativePath::MakeFull(Path);
		std::error_code Error;
		std::filesystem::remove_all(Folder, Error);
		if (Error)
		{
			ReportNotWritten(Folder, Describe(TEXT("the folder cannot be deleted"), Error.value()), TEXT("Check the permissions, and delete it by hand."));
		}
		return !Error;
	}

	double GetTimeOfChange(const FString& Path)
	{
		const FOnDisk OnDisk(NativePath::Resolve(Path));
		return OnDisk.bExists ? static_cast<double>(OnDisk.Status.st_mtim.tv_sec) + static_cast<double>(OnDisk.Status.st_mtim.tv_nsec) / 1e9 : 0.0;
	}
}
