// Copyright Velmorant. All Rights Reserved.

#include "ProgramCall.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <spawn.h>
#include <sstream>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace ProgramCall
{
	constexpr size_t MaxOutput = 1024 * 1024; // bytes

	/** A file without a name: nobody waits for its other end, as with a pipe, and it goes with this object. */
	class FMemoryFile
	{
	public:
		explicit FMemoryFile(std::string_view Bytes = {})
			: Descriptor(memfd_create("velmorant", MFD_CLOEXEC))
			, bSound(Descriptor >= 0 && write(Descriptor, Bytes.data(), Bytes.size()) == static_cast<ssize_t>(Bytes.size()) && lseek(Descriptor, 0, SEEK_SET) == 0)
		{
		}

		~FMemoryFile()
		{
			if (Descriptor >= 0)
			{
				close(Descriptor);
			}
		}

		FMemoryFile(const FMemoryFile&) = delete;
		FMemoryFile& operator=(const FMemoryFile&) = delete;

		bool IsSound() const { return bSound; }
		int Get() const { return Descriptor; }

		std::string ReadAll() const
		{
			std::string Bytes(MaxOutput, '\0');
			const ssize_t Count = pread(Descriptor, Bytes.data(), Bytes.size(), 0);
			Bytes.resize(Count > 0 ? static_cast<size_t>(Count) : 0);
			return Bytes;
		}

	private:
		int Descriptor;
		bool bSound;
	};

	/** In a process group of its own, so that all of it can be ended. */
	std::optional<pid_t> Start(const std::vector<std::string>& Words, const std::array<int, 3>& Descriptors)
	{
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		for (int Index = 0; Index < static_cast<int>(Descriptors.size()); ++Index)
		{
			posix_spawn_file_actions_adddup2(&Actions, Descriptors[static_cast<size_t>(Index)], Index);
		}
		posix_spawnattr_t Attributes;
		posix_spawnattr_init(&Attributes);
		posix_spawnattr_setflags(&Attributes, POSIX_SPAWN_SETPGROUP);

		std::vector<char*> Values;
		for (const std::string& Word : Words)
		{
			Values.push_back(const_cast<char*>(Word.c_str()));
		}
		Values.push_back(nullptr);
		pid_t Process = -1;
		const int Error = posix_spawn(&Process, Values[0], &Actions, &Attributes, Values.data(), environ);
		posix_spawnattr_destroy(&Attributes);
		posix_spawn_file_actions_destroy(&Actions);
		return Error == 0 ? std::optional<pid_t>(Process) : std::nullopt;
	}

	int WaitFor(pid_t Process, std::chrono::milliseconds Limit)
	{
		const auto End = std::chrono::steady_clock::now() + Limit;
		int Status = 0;
		pid_t Ended = 0;
		while ((Ended = waitpid(Process, &Status, WNOHANG)) == 0)
		{
			if (std::chrono::steady_clock::now() >= End)
			{
				kill(-Process, SIGKILL);
				waitpid(Process, &Status, 0);
				return FAnswer::TimedOut;
			}
			std::this_thread::sleep_for(std::chrono::milliseconds(2));
		}
		if (Ended < 0)
		{
			return FAnswer::NotStarted;
		}
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status); // as shells say it
	}

	std::string Find(const std::string& Name)
	{
		const char* Path = std::getenv("PATH");
		std::istringstream Folders(Path != nullptr ? Path : "");
		for (std::string Folder; std::getline(Folders, Folder, ':');)
		{
			const std::string File = Folder + "/" + Name;
			struct stat Status;
			if (Folder.starts_with("/") && stat(File.c_str(), &Status) == 0 && S_ISREG(Status.st_mode) && access(File.c_str(), X_OK) == 0)
			{
				return File;
			}
		}
		return {};
	}

	FAnswer Run(const std::vector<std::string>& Words, const std::string& Input, std::chrono::milliseconds Limit)
	{
		const FMemoryFile In(Input);
		const FMemoryFile Out;
		const FMemoryFile Errors;
		FAnswer Answer;
		if (!In.IsSound() || !Out.IsSound() || !Errors.IsSound())
		{
			return Answer;
		}
		if (const std::optional<pid_t> Process = Start(Words, {In.Get(), Out.Get(), Errors.Get()}))
		{
			Answer.ExitStatus = WaitFor(*Process, Limit);
			Answer.Output = Out.ReadAll();
			Answer.Errors = Errors.ReadAll();
		}
		return Answer;
	}
}
