// Copyright Velmorant. All Rights Reserved.

#include "Files/DiskFile.h"

#include "Files/AtomicReplace.h"
#include "Files/NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <unistd.h>
#include <utility>

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

	/** Closed with this object. */
	struct FOpenFile
	{
		FOpenFile() = default;
		FOpenFile(const FOpenFile&) = delete;
		FOpenFile& operator=(const FOpenFile&) = delete;

		~FOpenFile()
		{
			if (Descriptor >= 0)
			{
				close(Descriptor);
			}
		}

		int Descriptor = -1;
		struct stat Status;
	};

	/**
	 * What is no file is not even opened: that alone would wake who waits at the other end of a pipe, or rewind a tape. O_NONBLOCK is
	 * for what takes the file's place between the two looks.
	 */
	int OpenToRead(const std::string& Path, FOpenFile& Out)
	{
		const int Error = stat(Path.c_str(), &Out.Status) == 0 ? CheckReadable(Out.Status) : errno;
		if (Error != 0)
		{
			return Error;
		}
		Out.Descriptor = open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
		if (Out.Descriptor < 0)
		{
			return errno;
		}
		return fstat(Out.Descriptor, &Out.Status) == 0 ? CheckReadable(Out.Status) : errno;
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
		FOpenFile File;
		int Error = OpenToRead(Path, File);
		Error = Error != 0 ? Error : ReadToEnd(File.Descriptor, static_cast<size_t>(File.Status.st_size), OutBytes);
		if (Error != 0)
		{
			OutBytes.clear();
		}
		return Error;
	}

	/** Reads from the beginning on for as long as Bytes hold. No memory is taken for the file. */
	bool HoldsOpen(const FOpenFile& File, std::string_view Bytes)
	{
		if (static_cast<size_t>(File.Status.st_size) != Bytes.size())
		{
			return false;
		}
		char Buffer[64 * 1024];
		for (;;)
		{
			const ssize_t Count = read(File.Descriptor, Buffer, sizeof(Buffer));
			if (Count < 0 && errno == EINTR)
			{
				continue;
			}
			if (Count <= 0)
			{
				return Count == 0 && Bytes.empty();
			}
			if (!Bytes.starts_with(std::string_view(Buffer, static_cast<size_t>(Count))))
			{
				return false;
			}
			Bytes.remove_prefix(static_cast<size_t>(Count));
		}
	}

	int ReadShared(const std::string& Path, const HostFiles::FSharedBytes& Known, HostFiles::FSharedBytes& OutBytes)
	{
		OutBytes = nullptr;
		FOpenFile File;
		int Error = OpenToRead(Path, File);
		if (Error == 0 && Known != nullptr && HoldsOpen(File, *Known))
		{
			OutBytes = Known;
			return 0;
		}
		std::string Bytes;
		Error = Error == 0 && lseek(File.Descriptor, 0, SEEK_SET) != 0 ? errno : Error;
		Error = Error != 0 ? Error : ReadToEnd(File.Descriptor, static_cast<size_t>(File.Status.st_size), Bytes);
		OutBytes = Error == 0 ? std::make_shared<const std::string>(std::move(Bytes)) : nullptr;
		return Error;
	}

	bool Holds(const std::string& Path, const struct stat& Status, std::string_view Bytes)
	{
		FOpenFile File;
		return static_cast<size_t>(Status.st_size) == Bytes.size() && OpenToRead(Path, File) == 0 && HoldsOpen(File, Bytes);
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
		if (mkdir(Path.c_str(), Mode) != 0)
		{
			return errno == EEXIST ? 0 : errno;
		}
		AtomicReplace::FlushFolder(NativePath::FolderOf(Path)); // what is written in it is to last
		return 0;
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
