// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** How a copy went. */
enum ECopyResult
{
	COPY_OK = 0x00,
	COPY_Fail = 0x01,
	COPY_Canceled = 0x02
};

/** Flags for writers of files. */
enum EFileWrite
{
	FILEWRITE_None = 0x00,
	FILEWRITE_EvenIfReadOnly = 0x04
};

/** The editor's files. Host: there is one file manager; functions that take another one use this one all the same. */
class IFileManager
{
public:
	static IFileManager& Get();

	virtual ~IFileManager() = default;

	/** False for folders. */
	virtual bool FileExists(const TCHAR* Filename) = 0;

	/**
	 * @param RequireExists a missing file is a failure; otherwise there is nothing to do then
	 * @param Quiet         do not report a failure
	 */
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false) = 0;

	/**
	 * @param RequireExists a missing folder is a failure; otherwise there is nothing to do then
	 * @param Tree          with all that is in it; otherwise a folder that is not empty stays
	 */
	virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists = false, bool Tree = false) = 0;

	/**
	 * Makes Dest hold what Src holds, creating missing folders.
	 * @param Replace otherwise an existing Dest is a failure
	 * @return COPY_OK or COPY_Fail; the old Dest is whole after a failure
	 */
	virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace = true, bool EvenIfReadOnly = false) = 0;

	/**
	 * Appends the names, without folder, of the files directly in Directory. Host: sorted; a missing folder holds nothing.
	 * @param FileExtension such as ".ttf", with or without the dot; null takes all files
	 */
	virtual void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr) = 0;
};
