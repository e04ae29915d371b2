// Copyright Velmorant. All Rights Reserved.

#include "MeasuredProcess.h"

#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;

FMeasuredProcess MeasureProcess(const std::vector<std::string>& Arguments)
{
	std::vector<char*> Pointers;
	for (const std::string& Argument : Arguments)
	{
		Pointers.push_back(const_cast<char*>(Argument.c_str()));
	}
	Pointers.push_back(nullptr);

	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_addopen(&Actions, 0, "/dev/null", O_RDONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 1, "/dev/null", O_WRONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 2, "/dev/null", O_WRONLY, 0);

	FMeasuredProcess Result;
	pid_t Child = 0;
	const auto Start = std::chrono::steady_clock::now();
	if (posix_spawnp(&Child, Pointers[0], &Actions, nullptr, Pointers.data(), environ) == 0)
	{
		int Status = 0;
		rusage Usage = {};
		wait4(Child, &Status, 0, &Usage);
		Result.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
		Result.PeakMebibytes = static_cast<double>(Usage.ru_maxrss) / 1024.0;
		Result.ExitStatus = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	}
	posix_spawn_file_actions_destroy(&Actions);
	return Result;
}
