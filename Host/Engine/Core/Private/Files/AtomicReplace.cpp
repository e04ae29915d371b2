// Copyright Velmorant. All Rights Reserved.

#include "Files/AtomicReplace.h"

#include "Files/DiskFile.h"
#include "Files/NativePath.h"
#include "Files/WriteRules.h"
#include "HostProblems.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace AtomicReplace
{
	constexpr std::string_view TemporaryPrefix = ".velmorant-";
	constexpr std::string_view TemporarySuffix = ".tmp";

	void (*BeforeRename)(const char*, const char*) = nullptr;

	/** Closes on every way out; errors of close() do not matter after fsync(). */
	struct FDescriptor
	{
		int Value = -1;
		~FDescriptor()
		{
			if (Value >= 0)
			{
				close(Value);
			}
		}
	};

	/** Not derived from the target's name, which may already be as long as names can be. */
	std::string MakeTemporaryName(const std::string& Folder)
	{
		static unsigned Counter = 0;
		const std::string Unique = std::to_string(getpid()) + "-" + std::to_string(++Counter);
		return (Folder == "/" ? Folder : Folder + "/") + std::string(TemporaryPrefix) + Unique + std::string(TemporarySuffix);
	}

	int WriteAll(int File, std::string_view Bytes)
	{
		while (!Bytes.empty())
		{
			const ssize_t Written = write(File, Bytes.data(), Bytes.size());
			if (Written < 0 && errno != EINTR)
			{
				return errno;
			}
			Bytes.remove_prefix(Written > 0 ? static_cast<size_t>(Written) : 0);
		}
		return 0;
	}

	int SetOwnerAndMode(int File, const struct stat* Existing, mode_t NewMode)
	{
		if (Existing == nullptr)
		{
			return fchmod(File, NewMode) == 0 ? 0 : errno;
		}
		struct stat Own;
		if (fstat(File, &Own) == 0 && (Own.st_uid != Existing->st_uid || Own.st_gid != Existing->st_gid))
		{
			// Only root may give files away; the group can often be kept even so. Neither is worth failing for.
			if (fchown(File, Existing->st_uid, Existing->st_gid) != 0 && fchown(File, static_cast<uid_t>(-1), Existing->st_gid) != 0)
			{
				errno = 0;
			}
		}
		return fchmod(File, Existing->st_mode & 07777) == 0 ? 0 : errno;
	}

	/** The file that is being written just now, for handlers of signals: without allocation, and empty while there is none. */
	char Unfinished[PATH_MAX] = "";

	void SetUnfinished(const std::string& Name)
	{
		if (Name.size() < sizeof(Unfinished))
		{
			std::memcpy(Unfinished, Name.c_str(), Name.size() + 1);
		}
	}

	void RemoveUnfinished()
	{
		if (Unfinished[0] != '\0')
		{
			unlink(Unfinished);
		}
	}

	/** Locked for as long as it is open, which tells others that it is no leftover. @return 0 or an errno */
	int CreateTemporary(const std::string& Folder, std::string& OutName, FDescriptor& OutFile)
	{
		for (;;)
		{
			const std::string Name = MakeTemporaryName(Folder);
			SetUnfinished(Name);
			FDescriptor File{open(Name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)};
			if (File.Value < 0 && errno != EEXIST) // a leftover of a process that had this one's number
			{
				return errno;
			}
			// Somebody who looks for leftovers may have come between the two steps. A file system without locks has no such people.
			const bool bTaken = File.Value >= 0 && flock(File.Value, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
			if (File.Value >= 0 && !bTaken && access(Name.c_str(), F_OK) == 0)
			{
				OutName = Name;
				std::swap(OutFile.Value, File.Value);
				return 0;
			}
		}
	}

	/** Names and values of what users, systems and access lists attach to a file. What this user may not set, or the file system not hold, is left out. */
	int CopyAttributes(const std::string& From, const struct stat& Existing, int To)
	{
		const bool bOwnerOnly = (Existing.st_mode & 077) == 0; // no access list of before is to let others in
		std::string Names(std::max<ssize_t>(listxattr(From.c_str(), nullptr, 0), 0), '\0');
		Names.resize(static_cast<size_t>(std::max<ssize_t>(listxattr(From.c_str(), Names.data(), Names.size()), 0)));
		for (size_t At = 0; At < Names.size(); At += std::strlen(Names.c_str() + At) + 1)
		{
			const char* const Name = Names.c_str() + At;
			if (bOwnerOnly && std::string_view(Name).starts_with("system."))
			{
				continue;
			}
			std::string Value(static_cast<size_t>(std::max<ssize_t>(getxattr(From.c_str(), Name, nullptr, 0), 0)), '\0');
			const ssize_t Length = getxattr(From.c_str(), Name, Value.data(), Value.size());
			if (Length >= 0 && fsetxattr(To, Name, Value.data(), static_cast<size_t>(Length), 0) != 0 && errno != EPERM && errno != EACCES && errno != ENOTSUP)
			{
				return errno;
			}
		}
		return 0;
	}

	/** @return 0 or an errno */
	int Flush(int File)
	{
		int Result = 0;
		do
		{
			Result = fsync(File);
		} while (Result != 0 && errno == EINTR);
		return Result == 0 ? 0 : errno;
	}

	int WriteTemporary(int File, std::string_view Bytes, const std::string& Target, const struct stat* Existing, mode_t NewMode)
	{
		int Error = WriteAll(File, Bytes);
		Error = Error != 0 ? Error : SetOwnerAndMode(File, Existing, NewMode);
		Error = Error != 0 || Existing == nullptr ? Error : CopyAttributes(Target, *Existing, File);
		return Error != 0 ? Error : Flush(File);
	}

	bool IsSame(const struct stat& A, const struct stat& B)
	{
		return A.st_dev == B.st_dev && A.st_ino == B.st_ino && A.st_size == B.st_size && A.st_mtim.tv_sec == B.st_mtim.tv_sec && A.st_mtim.tv_nsec == B.st_mtim.tv_nsec;
	}

	/** Reads the file: two writes may fall into one tick of the clock. The look at its status afterwards is for what comes meanwhile. */
	bool StillHolds(const std::string& Target, std::string_view Basis)
	{
		struct stat Before;
		if (stat(Target.c_str(), &Before) != 0)
		{
			return errno == ENOENT && Basis.empty();
		}
		struct stat After;
		return DiskFile::Holds(Target, Before, Basis) && stat(Target.c_str(), &After) == 0 && IsSame(Before, After);
	}

	/** @param Basis as of Replace() */
	int Rename(const std::string& From, const std::string& Target, const std::string* Basis)
	{
		if (BeforeRename != nullptr)
		{
			BeforeRename(From.c_str(), Target.c_str());
		}
		if (Basis != nullptr && !StillHolds(Target, *Basis))
		{
			return ESTALE;
		}
		return rename(From.c_str(), Target.c_str()) == 0 ? 0 : errno;
	}

	bool IsNumber(std::string_view Text)
	{
		return !Text.empty() && std::all_of(Text.begin(), Text.end(), [](char Letter) { return Letter >= '0' && Letter <= '9'; });
	}

	/** Of this user, and of a process that lives no longer: nobody holds the lock. */
	bool IsLeftover(int Folder, const char* Name)
	{
		const FDescriptor File{openat(Folder, Name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)};
		struct stat Status;
		return File.Value >= 0 && fstat(File.Value, &Status) == 0 && S_ISREG(Status.st_mode) && Status.st_uid == geteuid() && flock(File.Value, LOCK_EX | LOCK_NB) == 0;
	}

	void FlushFolder(const std::string& Folder)
	{
		const FDescriptor Directory{open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
		const int Error = Directory.Value >= 0 ? Flush(Directory.Value) : errno;
		// A disk that fails, or is full. The others are those of a file system, or a user, that cannot do this.
		if (Error == EIO || Error == ENOSPC || Error == EDQUOT)
		{
			HostProblems::Report(NativePath::ToString(Folder), 0, WriteRules::Describe(TEXT("what was written in this folder may not outlast a power loss"), Error), TEXT("Check the disk and write it again."));
		}
	}

	bool IsTemporaryName(std::string_view Name)
	{
		if (!Name.starts_with(TemporaryPrefix) || !Name.ends_with(TemporarySuffix) || Name.size() < TemporaryPrefix.size() + TemporarySuffix.size())
		{
			return false;
		}
		Name.remove_prefix(TemporaryPrefix.size());
		Name.remove_suffix(TemporarySuffix.size());
		const size_t Dash = Name.find('-');
		return Dash != std::string_view::npos && IsNumber(Name.substr(0, Dash)) && IsNumber(Name.substr(Dash + 1));
	}

	void RemoveLeftovers(const std::string& Folder)
	{
		DIR* Directory = opendir(Folder.c_str());
		if (Directory == nullptr)
		{
			return;
		}
		while (const dirent* Entry = readdir(Directory))
		{
			if (IsTemporaryName(Entry->d_name) && IsLeftover(dirfd(Directory), Entry->d_name))
			{
				unlinkat(dirfd(Directory), Entry->d_name, 0);
			}
		}
		closedir(Directory);
	}

	int Replace(const std::string& Target, std::string_view Bytes, const struct stat* Existing, mode_t NewMode, const std::string* Basis)
	{
		const std::string Folder = NativePath::FolderOf(Target);
		std::string Temporary;
		FDescriptor File; // open, and with it the lock, until the file has its name
		int Error = CreateTemporary(Folder, Temporary, File);
		if (Error != 0)
		{
			SetUnfinished({});
			return Error;
		}
		Error = WriteTemporary(File.Value, Bytes, Target, Existing, NewMode);
		Error = Error != 0 ? Error : Rename(Temporary, Target, Basis);
		if (Error != 0)
		{
			unlink(Temporary.c_str());
		}
		SetUnfinished({});
		if (Error == 0)
		{
			FlushFolder(Folder);
		}
		return Error;
	}

	int Move(const std::string& From, const std::string& Target, const struct stat* Existing)
	{
		int Error = 0;
		if (Existing != nullptr)
		{
			const FDescriptor File{open(From.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)};
			Error = File.Value >= 0 ? SetOwnerAndMode(File.Value, Existing, 0) : errno;
		}
		Error = Error != 0 ? Error : Rename(From, Target, nullptr);
		if (Error == 0)
		{
			FlushFolder(NativePath::FolderOf(Target));
		}
		return Error;
	}

	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile))
	{
		BeforeRename = Hook;
	}
}
