// Copyright Velmorant. All Rights Reserved.

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;

/**
 * Runs its arguments as a program without input or output, and prints its seconds, its largest resident set in KiB, and its exit status
 * (-1 when it was killed). A program of its own, because Linux counts the memory of whoever starts a process as the process's own peak.
 */
int main(int NumArguments, char** Arguments)
{
	if (NumArguments < 2)
	{
		std::fputs("usage: VelmorantProcessMeter PROGRAM [ARGUMENTS]\n", stderr);
		return 2;
	}
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_addopen(&Actions, 0, "/dev/null", O_RDONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 1, "/dev/null", O_WRONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 2, "/dev/null", O_WRONLY, 0);

	pid_t Child = 0;
	const auto Start = std::chrono::steady_clock::now();
	if (posix_spawnp(&Child, Arguments[1], &Actions, nullptr, Arguments + 1, environ) != 0)
	{
		std::fprintf(stderr, "VelmorantProcessMeter: %s cannot be run\n", Arguments[1]);
		return 3;
	}
	int Status = 0;
	rusage Usage = {};
	wait4(Child, &Status, 0, &Usage);
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	std::printf("%.6f %ld %d\n", Seconds, Usage.ru_maxrss, WIFEXITED(Status) ? WEXITSTATUS(Status) : -1);
	return 0;
}
