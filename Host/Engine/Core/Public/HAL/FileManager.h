// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

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

	/** False for files. */
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;

	/**
	 * @param RequireExists a missing file is a failure; otherwise there is nothing to do then
	 * @param Quiet         do not report a failure
	 */
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false) = 0;

	/** @param Tree create missing folders above it, too */
	virtual bool MakeDirectory(const TCHAR* Path, bool Tree = false) = 0;
};
