// Copyright Velmorant. All Rights Reserved.

#include "HAL/FileManager.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "HostFiles.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

#include <filesystem>

DEFINE_LOG_CATEGORY_STATIC(LogFileManager, Log, All);

namespace FileManager
{
	class FHostFileManager final : public IFileManager
	{
	public:
		//~ Begin IFileManager
		bool FileExists(const TCHAR* Filename) override { return HostFiles::FileExists(Filename); }

		bool Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet) override
		{
			const bool bMissing = HostFiles::GetKind(Filename) == HostFiles::EKind::Missing;
			const HostFiles::EReadOnly ReadOnly = EvenReadOnly ? HostFiles::EReadOnly::Override : HostFiles::EReadOnly::Refuse;
			const bool bDeleted = !(bMissing && RequireExists) && HostFiles::Delete(Filename, ReadOnly);
			UE_CLOG(!bDeleted && !Quiet, LogFileManager, Warning, TEXT("Could not delete %s"), Filename);
			return bDeleted;
		}

		bool DeleteDirectory(const TCHAR* Path, bool RequireExists, bool Tree) override
		{
			if (!HostFiles::DirectoryExists(Path))
			{
				return !RequireExists;
			}
			bool bEmpty = true;
			if (Tree)
			{
				for (const FString& File : HostFiles::FindFilesIn(Path, FString()))
				{
					bEmpty &= HostFiles::Delete(File);
				}
				for (const FString& Folder : HostFiles::FindDirectories(Path))
				{
					bEmpty &= DeleteDirectory(*Folder, false, true);
				}
			}
			std::error_code Fault; // not empty, or somebody else's
			return bEmpty && !HostFiles::HasOverlay() && std::filesystem::remove(std::filesystem::path(TCHAR_TO_UTF8(Path)), Fault);
		}

		uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace, bool EvenIfReadOnly) override
		{
			std::string Bytes;
			const bool bMayWrite = Replace || HostFiles::GetKind(Dest) == HostFiles::EKind::Missing;
			const HostFiles::EReadOnly ReadOnly = EvenIfReadOnly ? HostFiles::EReadOnly::Override : HostFiles::EReadOnly::Refuse;
			const bool bCopied = bMayWrite && HostFiles::Read(Src, Bytes) == HostFiles::ERead::Done && HostFiles::Write(Dest, Bytes, ReadOnly);
			UE_CLOG(!bCopied, LogFileManager, Warning, TEXT("Could not copy %s to %s"), Src, Dest);
			return bCopied ? COPY_OK : COPY_Fail;
		}

		void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension) override
		{
			FString Suffix = FileExtension != nullptr ? FileExtension : TEXT("");
			if (!Suffix.IsEmpty() && !Suffix.StartsWith(TEXT(".")))
			{
				Suffix = TEXT(".") + Suffix;
			}
			for (const FString& File : HostFiles::FindFilesIn(Directory, Suffix))
			{
				FoundFiles.Add(FPaths::GetCleanFilename(File));
			}
		}
		//~ End IFileManager
	};
}

IFileManager& IFileManager::Get()
{
	static FileManager::FHostFileManager Manager;
	return Manager;
}
