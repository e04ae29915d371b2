// Copyright Velmorant. All Rights Reserved.

#include "Files/ShellCommand.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ShellCommand
{
	constexpr int NotStarted = 127; // as shells say it

	/** In the new process: nothing here may allocate memory. */
	[[noreturn]] void Become(const char* Line, const char* Argument, const char* WorkingDirectory)
	{
		const int Nothing = open("/dev/null", O_RDONLY);
		const bool bReady = Nothing >= 0 && dup2(Nothing, STDIN_FILENO) >= 0 && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0 && chdir(WorkingDirectory) == 0;
		if (bReady)
		{
			execl("/bin/sh", "sh", "-c", Line, "sh", Argument, static_cast<char*>(nullptr));
		}
		_exit(NotStarted);
	}

	int Run(const std::string& Command, const std::string& Argument, const std::string& WorkingDirectory)
	{
		const std::string Line = Command + " \"$1\""; // the shell quotes the argument, whatever is in it
		const pid_t Process = fork();
		if (Process == 0)
		{
			Become(Line.c_str(), Argument.c_str(), WorkingDirectory.c_str());
		}
		int Status = 0;
		while (Process > 0 && waitpid(Process, &Status, 0) < 0)
		{
			if (errno != EINTR)
			{
				return NotStarted;
			}
		}
		if (Process < 0)
		{
			return NotStarted;
		}
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
	}
}
