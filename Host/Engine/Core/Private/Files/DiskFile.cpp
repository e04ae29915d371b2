// Copyright Velmorant. All Rights Reserved.

#include "Files/DiskFile.h"

#include "Files/NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace DiskFile
{
	int CheckReadable(const struct stat& Status)
	{
		if (!S_ISREG(Status.st_mode))
		{
			return S_ISDIR(Status.st_mode) ? EISDIR : ENOTSUP;
		}
		return Status.st_size > MaxFileSize ? EFBIG : 0;
	}

	/**
	 * What is no file is not even opened: that alone would wake who waits at the other end of a pipe, or rewind a tape. O_NONBLOCK is
	 * for what takes the file's place between the two looks.
	 */
	int OpenToRead(const std::string& Path, struct stat& OutStatus, int& OutFile)
	{
		int Error = stat(Path.c_str(), &OutStatus) == 0 ? CheckReadable(OutStatus) : errno;
		if (Error != 0)
		{
			return Error;
		}
		OutFile = open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
		if (OutFile < 0)
		{
			return errno;
		}
		Error = fstat(OutFile, &OutStatus) == 0 ? CheckReadable(OutStatus) : errno;
		if (Error != 0)
		{
			close(OutFile);
		}
		return Error;
	}

	int ReadToEnd(int File, size_t ExpectedSize, std::string& OutBytes)
	{
		OutBytes.resize(ExpectedSize + 1); // room for one more byte: the read that finds none tells the end
		size_t Length = 0;
		for (;;)
		{
			if (Length > static_cast<size_t>(MaxFileSize))
			{
				return EFBIG; // it grows while it is read
			}
			if (Length == OutBytes.size())
			{
				OutBytes.resize(OutBytes.size() * 2);
			}
			const ssize_t Count = read(File, OutBytes.data() + Length, OutBytes.size() - Length);
			if (Count == 0)
			{
				OutBytes.resize(Length);
				return 0;
			}
			if (Count < 0 && errno != EINTR)
			{
				return errno;
			}
			Length += Count > 0 ? static_cast<size_t>(Count) : 0;
		}
	}

	int Read(const std::string& Path, std::string& OutBytes)
	{
		OutBytes.clear();
		struct stat Status;
		int File;
		int Error = OpenToRead(Path, Status, File);
		if (Error != 0)
		{
			return Error;
		}
		Error = ReadToEnd(File, static_cast<size_t>(Status.st_size), OutBytes);
		if (Error != 0)
		{
			OutBytes.clear();
		}
		close(File);
		return Error;
	}

	bool Holds(const std::string& Path, const struct stat& Status, std::string_view Bytes)
	{
		std::string Current;
		return S_ISREG(Status.st_mode) && static_cast<size_t>(Status.st_size) == Bytes.size() && Read(Path, Current) == 0 && Current == Bytes;
	}

	bool IsReadOnly(const std::string& Path, const struct stat& Status)
	{
		return (Status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || access(Path.c_str(), W_OK) != 0;
	}

	int MakeDirectory(const std::string& Path, mode_t Mode)
	{
		struct stat Status;
		if (stat(Path.c_str(), &Status) == 0)
		{
			return S_ISDIR(Status.st_mode) ? 0 : ENOTDIR;
		}
		const int Error = Path == "/" ? ENOENT : MakeDirectory(NativePath::FolderOf(Path), Mode);
		if (Error != 0)
		{
			return Error;
		}
		return mkdir(Path.c_str(), Mode) == 0 || errno == EEXIST ? 0 : errno;
	}

	mode_t GetNewFileMode()
	{
		static const mode_t Mask = [] {
			const mode_t Current = umask(0); // there is no other way to ask
			umask(Current);
			return Current;
		}();
		return 0666 & ~Mask;
	}
}
