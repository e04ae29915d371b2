// Copyright Velmorant. All Rights Reserved.
// Preloaded into a program: lets one of its calls on files below a folder fail, ends the process there, or lets the power go.
//
// VELMORANT_FAULT_FOLDER  the folder, with real path
// VELMORANT_FAULT_AT      which call, from 1 on: opens, reads, writes, flushes, renames, closes of what was written, locks and so on, and
//                         last the process's end; none without it
// VELMORANT_FAULT_KIND    an errno by its number, the same with "+" (the file cannot be read from then on), "short" (a write takes half),
//                         "kill", "power" (what was written and not flushed is lost) or "powerAndNames" (so are new names, and deletions,
//                         whose folder was not flushed)
// VELMORANT_FAULT_LOG     a folder. "calls" in it gets each call, a line with its name and path; files "1", "2" and so on what each path held
//                         once it got its name, below a line with the path, or nothing but the path when that was deleted

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace FaultyFiles
{
	template<typename FunctionType>
	FunctionType* GetReal(const char* Name)
	{
		return reinterpret_cast<FunctionType*>(dlsym(RTLD_NEXT, Name));
	}

	std::string GetSetting(const char* Name)
	{
		const char* Value = std::getenv(Name);
		return Value != nullptr ? Value : "";
	}

	std::string FolderOf(const std::string& Path)
	{
		return Path.substr(0, Path.rfind('/'));
	}

	/** A file that is open, or a folder. */
	struct FOpen
	{
		std::string Path;
		bool bFolder = false;
		bool bRead = false;
	};

	/** A name that came or went, and how it was before. */
	struct FNameChange
	{
		std::string Path;
		std::string From; // of a rename
		std::string Backup; // another name of the file that stood there; empty for none
		bool bFolder = false;
	};

	struct FState
	{
		const std::string Folder = GetSetting("VELMORANT_FAULT_FOLDER");
		const std::string Kind = GetSetting("VELMORANT_FAULT_KIND");
		const std::string Log = GetSetting("VELMORANT_FAULT_LOG");
		const long At = std::atol(GetSetting("VELMORANT_FAULT_AT").c_str());
		long Calls = 0;
		long Remembered = 0;
		std::string Unreadable; // a path
		std::map<int, FOpen> Open; // by descriptor
		std::map<std::string, off_t> Unflushed; // by path: so many bytes are sure
		std::vector<FNameChange> NameChanges; // not flushed
	};

	FState& Get()
	{
		static FState* State = new FState; // never destroyed: files are closed until the very end
		return *State;
	}

	std::string MakeFull(int At, const char* Path)
	{
		char Buffer[4096] = "";
		if (Path[0] != '/' && At != AT_FDCWD)
		{
			const auto Found = Get().Open.find(At);
			return (Found != Get().Open.end() ? Found->second.Path : std::string()) + "/" + Path;
		}
		return Path[0] == '/' ? Path : std::string(getcwd(Buffer, sizeof(Buffer)) != nullptr ? Buffer : "") + "/" + Path;
	}

	bool IsMeant(const std::string& Path)
	{
		return !Get().Folder.empty() && Path.starts_with(Get().Folder + "/");
	}

	/** Another name for a file, outside of the folder, under which it outlives a rename over it. */
	std::string MakeBackup(const std::string& Path)
	{
		if (Get().Kind != "powerAndNames")
		{
			return {};
		}
		const std::string Backup = Get().Folder + ".kept-" + std::to_string(getpid()) + "-" + std::to_string(Get().Calls);
		return syscall(SYS_linkat, AT_FDCWD, Path.c_str(), AT_FDCWD, Backup.c_str(), 0) == 0 ? Backup : std::string();
	}

	void LosePower()
	{
		FState& State = Get();
		for (const auto& [Path, Length] : State.Unflushed)
		{
			(void)!truncate(Path.c_str(), Length);
		}
		for (; State.Kind == "powerAndNames" && !State.NameChanges.empty(); State.NameChanges.pop_back())
		{
			const FNameChange& Change = State.NameChanges.back();
			if (!Change.From.empty())
			{
				syscall(SYS_rename, Change.Path.c_str(), Change.From.c_str());
			}
			else
			{
				syscall(Change.bFolder ? SYS_rmdir : SYS_unlink, Change.Path.c_str());
			}
			if (!Change.Backup.empty())
			{
				syscall(SYS_rename, Change.Backup.c_str(), Change.Path.c_str());
			}
		}
		for (const FNameChange& Change : State.NameChanges)
		{
			syscall(SYS_unlink, Change.Backup.c_str());
		}
	}

	/** What a path holds, or that it is gone. */
	void Remember(const std::string& Path)
	{
		FState& State = Get();
		struct stat Status;
		const bool bThere = stat(Path.c_str(), &Status) == 0;
		if (State.Log.empty() || (bThere && !S_ISREG(Status.st_mode)))
		{
			return;
		}
		std::ofstream Out(State.Log + "/" + std::to_string(++State.Remembered), std::ios::binary);
		Out << Path;
		if (bThere)
		{
			Out << "\n";
			if (Status.st_size > 0)
			{
				Out << std::ifstream(Path, std::ios::binary).rdbuf();
			}
		}
	}

	bool IsOfReading(const char* Name)
	{
		return std::strcmp(Name, "openRead") == 0 || std::strcmp(Name, "read") == 0 || std::strcmp(Name, "opendir") == 0;
	}

	/** Counts a call. @return whether it is the one; errno is set to what it fails with, 0 for a short write */
	bool Comes(const char* Name, const std::string& Path)
	{
		FState& State = Get();
		++State.Calls;
		if (!State.Log.empty())
		{
			std::ofstream(State.Log + "/calls", std::ios::app) << Name << ' ' << Path << '\n';
		}
		const bool bUnreadable = IsOfReading(Name) && Path == State.Unreadable;
		if (State.Calls != State.At && !bUnreadable)
		{
			return false;
		}
		if (State.Kind.starts_with("power"))
		{
			LosePower();
		}
		if (State.Kind == "kill" || State.Kind.starts_with("power"))
		{
			raise(SIGKILL);
		}
		if (State.Kind.ends_with('+'))
		{
			State.Unreadable = Path;
		}
		errno = std::atoi(State.Kind.c_str());
		return true;
	}

	int Open(const char* Real, int At, const char* Path, int Flags, mode_t Mode)
	{
		const std::string Full = MakeFull(At, Path);
		const bool bFolder = (Flags & O_DIRECTORY) != 0;
		const bool bRead = !bFolder && (Flags & O_ACCMODE) == O_RDONLY;
		const bool bCounts = IsMeant(Full);
		if (bCounts && Comes(bRead ? "openRead" : "open", Full) && errno != 0)
		{
			return -1;
		}
		struct stat Status;
		const bool bNew = bCounts && stat(Full.c_str(), &Status) != 0;
		const int File = std::strcmp(Real, "openat") == 0 ? GetReal<int(int, const char*, int, ...)>(Real)(At, Path, Flags, Mode) : GetReal<int(const char*, int, ...)>(Real)(Path, Flags, Mode);
		if (bCounts && File >= 0)
		{
			Get().Open[File] = {Full, bFolder, bRead};
			if (bNew)
			{
				Get().NameChanges.push_back({Full, "", "", false});
			}
		}
		return File;
	}

	/** Null for what counts nowhere. */
	FOpen* Find(int File)
	{
		const auto Found = Get().Open.find(File);
		return Found != Get().Open.end() ? &Found->second : nullptr;
	}

	/** The same for what is written. */
	FOpen* FindWritten(int File)
	{
		FOpen* Found = Find(File);
		return Found != nullptr && !Found->bRead ? Found : nullptr;
	}

	int Flush(const char* Real, int File)
	{
		FOpen* Found = FindWritten(File);
		if (Found != nullptr && Comes("fsync", Found->Path) && errno != 0)
		{
			return -1;
		}
		const int Result = GetReal<int(int)>(Real)(File);
		if (Result == 0 && Found != nullptr && !Found->bFolder)
		{
			Get().Unflushed.erase(Found->Path);
		}
		if (Result == 0 && Found != nullptr && Found->bFolder)
		{
			std::erase_if(Get().NameChanges, [Found](const FNameChange& Change) {
				const bool bFlushed = FolderOf(Change.Path) == Found->Path;
				if (bFlushed && !Change.Backup.empty())
				{
					syscall(SYS_unlink, Change.Backup.c_str());
				}
				return bFlushed;
			});
		}
		return Result;
	}

	/** Calls on a path that need nothing else. */
	template<typename... ArgumentTypes>
	int OnPath(const char* Real, const std::string& Full, ArgumentTypes... Arguments)
	{
		if (IsMeant(Full) && Comes(Real, Full) && errno != 0)
		{
			return -1;
		}
		return GetReal<int(ArgumentTypes...)>(Real)(Arguments...);
	}

	template<typename... ArgumentTypes>
	int OnFile(const char* Real, int File, ArgumentTypes... Arguments)
	{
		const FOpen* Found = FindWritten(File);
		if (Found != nullptr && Comes(Real, Found->Path) && errno != 0)
		{
			return -1;
		}
		return GetReal<int(int, ArgumentTypes...)>(Real)(File, Arguments...);
	}

	template<typename... ArgumentTypes>
	int Remove(const char* Real, const std::string& Full, ArgumentTypes... Arguments)
	{
		const std::string Backup = IsMeant(Full) ? MakeBackup(Full) : std::string();
		const int Result = OnPath(Real, Full, Arguments...);
		if (!Backup.empty())
		{
			Get().NameChanges.push_back({Full, "", Backup, false});
		}
		if (Result == 0 && IsMeant(Full))
		{
			Remember(Full);
		}
		return Result;
	}

	/** A folder's files, or the file itself, have another path now. */
	void MoveUnflushed(const std::string& From, const std::string& To)
	{
		std::map<std::string, off_t> Moved;
		for (const auto& [Path, Length] : Get().Unflushed)
		{
			Moved[Path == From || Path.starts_with(From + "/") ? To + Path.substr(From.size()) : Path] = Length;
		}
		Get().Unflushed = std::move(Moved);
	}

	__attribute__((destructor)) void End()
	{
		if (!Get().Folder.empty())
		{
			Comes("end", Get().Folder);
			for (const FNameChange& Change : Get().NameChanges)
			{
				syscall(SYS_unlink, Change.Backup.c_str());
			}
		}
	}
}

extern "C"
{
	int open(const char* Path, int Flags, ...)
	{
		va_list Rest;
		va_start(Rest, Flags);
		const mode_t Mode = va_arg(Rest, mode_t);
		va_end(Rest);
		return FaultyFiles::Open("open", AT_FDCWD, Path, Flags, Mode);
	}

	int open64(const char* Path, int Flags, ...)
	{
		va_list Rest;
		va_start(Rest, Flags);
		const mode_t Mode = va_arg(Rest, mode_t);
		va_end(Rest);
		return FaultyFiles::Open("open64", AT_FDCWD, Path, Flags, Mode);
	}

	int openat(int At, const char* Path, int Flags, ...)
	{
		va_list Rest;
		va_start(Rest, Flags);
		const mode_t Mode = va_arg(Rest, mode_t);
		va_end(Rest);
		return FaultyFiles::Open("openat", At, Path, Flags, Mode);
	}

	ssize_t write(int File, const void* Bytes, size_t Count)
	{
		using namespace FaultyFiles;
		const FOpen* const Found = FindWritten(File);
		if (Found != nullptr)
		{
			struct stat Status;
			const off_t Sure = fstat(File, &Status) == 0 ? Status.st_size : 0;
			Get().Unflushed.emplace(Found->Path, Sure);
			const bool bComes = Comes("write", Found->Path);
			if (bComes && errno != 0)
			{
				return -1;
			}
			Count = bComes && Count > 1 ? Count / 2 : Count;
		}
		return GetReal<ssize_t(int, const void*, size_t)>("write")(File, Bytes, Count);
	}

	ssize_t read(int File, void* Bytes, size_t Count)
	{
		using namespace FaultyFiles;
		const FOpen* const Found = Find(File);
		if (Found != nullptr && Found->bRead && Comes("read", Found->Path) && errno != 0)
		{
			return -1;
		}
		return GetReal<ssize_t(int, void*, size_t)>("read")(File, Bytes, Count);
	}

	DIR* opendir(const char* Path)
	{
		using namespace FaultyFiles;
		const std::string Full = MakeFull(AT_FDCWD, Path);
		if (IsMeant(Full) && Comes("opendir", Full) && errno != 0)
		{
			return nullptr;
		}
		DIR* const Directory = GetReal<DIR*(const char*)>("opendir")(Path);
		if (Directory != nullptr && IsMeant(Full))
		{
			Get().Open[dirfd(Directory)] = {Full, true, true};
		}
		return Directory;
	}

	int closedir(DIR* Directory)
	{
		FaultyFiles::Get().Open.erase(dirfd(Directory));
		return FaultyFiles::GetReal<int(DIR*)>("closedir")(Directory);
	}

	int fsync(int File)
	{
		return FaultyFiles::Flush("fsync", File);
	}
	int fchmod(int File, mode_t Mode)
	{
		return FaultyFiles::OnFile("fchmod", File, Mode);
	}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow" // the system has a struct of that name
	int flock(int File, int Operation)
	{
		return FaultyFiles::OnFile("flock", File, Operation);
	}
#pragma GCC diagnostic pop

	int close(int File)
	{
		using namespace FaultyFiles;
		const FOpen* const Found = FindWritten(File);
		const bool bComes = Found != nullptr && Comes("close", Found->Path);
		const int Fault = errno;
		Get().Open.erase(File);
		const int Result = GetReal<int(int)>("close")(File); // closed in any case, as the system does it
		errno = bComes ? Fault : errno;
		return bComes && Fault != 0 ? -1 : Result;
	}

	int rename(const char* From, const char* To)
	{
		using namespace FaultyFiles;
		const std::string FullFrom = MakeFull(AT_FDCWD, From);
		const std::string FullTo = MakeFull(AT_FDCWD, To);
		const std::string Backup = IsMeant(FullTo) ? MakeBackup(FullTo) : std::string();
		const int Result = OnPath("rename", FullTo, From, To);
		if (IsMeant(FullTo) && Result == 0)
		{
			MoveUnflushed(FullFrom, FullTo);
			Remember(FullTo);
			Get().NameChanges.push_back({FullTo, FullFrom, Backup, false});
		}
		else if (!Backup.empty())
		{
			syscall(SYS_unlink, Backup.c_str());
		}
		return Result;
	}

	int link(const char* From, const char* To)
	{
		return FaultyFiles::OnPath("link", FaultyFiles::MakeFull(AT_FDCWD, To), From, To);
	}
	int unlink(const char* Path)
	{
		return FaultyFiles::Remove("unlink", FaultyFiles::MakeFull(AT_FDCWD, Path), Path);
	}

	int unlinkat(int At, const char* Path, int Flags)
	{
		return FaultyFiles::Remove("unlinkat", FaultyFiles::MakeFull(At, Path), At, Path, Flags);
	}

	int mkdir(const char* Path, mode_t Mode)
	{
		const std::string Full = FaultyFiles::MakeFull(AT_FDCWD, Path);
		const int Result = FaultyFiles::OnPath("mkdir", Full, Path, Mode);
		if (Result == 0 && FaultyFiles::IsMeant(Full))
		{
			FaultyFiles::Get().NameChanges.push_back({Full, "", "", true});
		}
		return Result;
	}
}
