// Copyright Velmorant. All Rights Reserved.

#include "PrivateFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PrivateFile
{
	bool WriteAll(int Descriptor, const std::string& Bytes)
	{
		size_t Written = 0;
		while (Written < Bytes.size())
		{
			const ssize_t Count = write(Descriptor, Bytes.data() + Written, Bytes.size() - Written);
			if (Count < 0 && errno != EINTR)
			{
				return false;
			}
			Written += Count > 0 ? static_cast<size_t>(Count) : 0;
		}
		return fsync(Descriptor) == 0;
	}

	bool MakeFolders(const std::filesystem::path& Folder)
	{
		std::error_code Error;
		if (std::filesystem::is_directory(Folder, Error))
		{
			return true;
		}
		return MakeFolders(Folder.parent_path()) && (mkdir(Folder.c_str(), 0700) == 0 || errno == EEXIST);
	}
}

bool PrivateFile::Write(const FString& Path, const std::string& Bytes, FString& OutError)
{
	const std::filesystem::path Target(TCHAR_TO_UTF8(*Path));
	std::string Temporary = Target.string() + ".XXXXXX";
	bool bWritten = false;

	const int Descriptor = MakeFolders(Target.parent_path()) ? mkstemp(Temporary.data()) : -1; // mode 0600
	if (Descriptor >= 0)
	{
		bWritten = WriteAll(Descriptor, Bytes);
		bWritten = close(Descriptor) == 0 && bWritten;
		bWritten = bWritten && rename(Temporary.c_str(), Target.c_str()) == 0;
	}
	if (!bWritten)
	{
		OutError = UTF8_TO_TCHAR(std::strerror(errno));
		if (Descriptor >= 0)
		{
			unlink(Temporary.c_str());
		}
	}
	return bWritten;
}
