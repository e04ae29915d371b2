// Copyright Velmorant. All Rights Reserved.

#include "Files/WriteRules.h"

#include "Files/DiskFile.h"
#include "Files/NativePath.h"
#include "Files/TextCoding.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "Misc/Paths.h"

#include <cstring>

namespace WriteRules
{
	constexpr mode_t PrivateFileMode = 0600;
	constexpr mode_t PrivateFolderMode = 0700;
	constexpr mode_t SharedFolderMode = 0777; // less what the umask takes

	bool IsIn(const std::string& Path, const FString& Directory)
	{
		const std::string Folder = NativePath::Resolve(Directory);
		return Path == Folder || Path.starts_with(Folder + "/");
	}

	bool IsPrivate(const std::string& Path)
	{
		return IsIn(Path, HostPaths::GetUserSettingsDir()) || IsIn(Path, HostPaths::GetUserStateDir());
	}

	bool IsForOwnerOnly(const std::string& Path)
	{
		return IsPrivate(Path) || IsIn(Path, FPaths::GeneratedConfigDir());
	}

	void ReportNotWritten(const std::string& Path, const FString& Message, const TCHAR* Remedy)
	{
		HostProblems::ReportNotWritten(NativePath::ToString(Path), Message, Remedy);
	}

	FString Describe(const TCHAR* What, int Error)
	{
		return FString(What) + TEXT(": ") + TextCoding::ToFString(std::strerror(Error));
	}

	bool MayReplace(const std::string& Path, const FOnDisk& OnDisk, HostFiles::EReadOnly ReadOnly)
	{
		if (!OnDisk.bExists)
		{
			return true;
		}
		if (S_ISDIR(OnDisk.Status.st_mode))
		{
			ReportNotWritten(Path, TEXT("a folder stands where a file is to be written"), TEXT("Move the folder away."));
			return false;
		}
		if (!S_ISREG(OnDisk.Status.st_mode))
		{
			ReportNotWritten(Path, TEXT("what stands where a file is to be written is no ordinary file"), TEXT("Move it away."));
			return false;
		}
		if (ReadOnly == HostFiles::EReadOnly::Refuse && DiskFile::IsReadOnly(Path, OnDisk.Status))
		{
			ReportNotWritten(Path, TEXT("the file is read-only and was left as it is"), TEXT("Make it writable, or check it out in version control."));
			return false;
		}
		return true;
	}

	mode_t GetModeOfNewFile(const std::string& Path)
	{
		return IsForOwnerOnly(Path) ? PrivateFileMode : DiskFile::GetNewFileMode();
	}

	int MakeFolder(const std::string& Folder)
	{
		const FOnDisk OnDisk(Folder); // nearly always there; only a new one needs a mode
		if (OnDisk.bExists && S_ISDIR(OnDisk.Status.st_mode))
		{
			return 0;
		}
		return DiskFile::MakeDirectory(Folder, IsPrivate(Folder) ? PrivateFolderMode : SharedFolderMode);
	}

	bool MakeFolderOrReport(const std::string& Folder, const std::string& For)
	{
		const int Error = MakeFolder(Folder);
		if (Error != 0)
		{
			ReportNotWritten(For, Describe(TEXT("the folder cannot be created"), Error), TEXT("Check its path and permissions."));
		}
		return Error == 0;
	}
}
