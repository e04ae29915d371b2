// Copyright Velmorant. All Rights Reserved.

#include "MeasuredProcess.h"

#include <cstdio>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace MeasuredProcess
{
	/** What a program writes to its output, read to its end. Empty when it cannot be run. */
	std::string ReadOutput(std::vector<std::string> Arguments)
	{
		std::vector<char*> Pointers;
		for (std::string& Argument : Arguments)
		{
			Pointers.push_back(Argument.data());
		}
		Pointers.push_back(nullptr);

		int Pipe[2];
		if (pipe(Pipe) != 0)
		{
			return {};
		}
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		posix_spawn_file_actions_adddup2(&Actions, Pipe[1], 1);
		posix_spawn_file_actions_addclose(&Actions, Pipe[0]);
		posix_spawn_file_actions_addclose(&Actions, Pipe[1]);
		pid_t Child = 0;
		const bool bRuns = posix_spawn(&Child, Pointers[0], &Actions, nullptr, Pointers.data(), environ) == 0;
		posix_spawn_file_actions_destroy(&Actions);
		close(Pipe[1]);

		std::string Output;
		char Buffer[256];
		for (ssize_t Size = 0; (Size = read(Pipe[0], Buffer, sizeof(Buffer))) > 0;)
		{
			Output.append(Buffer, static_cast<size_t>(Size));
		}
		close(Pipe[0]);
		if (bRuns)
		{
			waitpid(Child, nullptr, 0);
		}
		return Output;
	}
}

FMeasuredProcess MeasureProcess(const std::vector<std::string>& Arguments)
{
	std::vector<std::string> Metered = {VELMORANT_BINARY_DIR "/VelmorantProcessMeter"};
	Metered.insert(Metered.end(), Arguments.begin(), Arguments.end());
	FMeasuredProcess Result;
	long PeakKibibytes = 0;
	if (std::sscanf(MeasuredProcess::ReadOutput(Metered).c_str(), "%lf %ld %d", &Result.Seconds, &PeakKibibytes, &Result.ExitStatus) == 3)
	{
		Result.PeakMebibytes = static_cast<double>(PeakKibibytes) / 1024.0;
	}
	return Result;
}
