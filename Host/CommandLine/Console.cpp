// Copyright Velmorant. All Rights Reserved.

#include "Console.h"

#include "Containers/StringConv.h"
#include "HostProblems.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace Console
{
	int LossReason = 0; // errno of the first write to the standard output that failed

	bool Write(std::FILE* File, std::string_view Line)
	{
		return std::fwrite(Line.data(), 1, Line.size(), File) == Line.size() && std::fputc('\n', File) != EOF;
	}

	void NoteLoss(bool bWritten)
	{
		if (!bWritten && LossReason == 0)
		{
			LossReason = errno != 0 ? errno : EIO;
		}
	}

	void Prepare()
	{
		std::signal(SIGPIPE, SIG_IGN); // a write to a pipe that nobody reads fails instead
		for (int Output = STDIN_FILENO; Output <= STDERR_FILENO; ++Output)
		{
			// Else a file that is opened later would get the number of an output that is closed, and what is printed with it.
			if (fcntl(Output, F_GETFD) < 0)
			{
				open("/dev/null", O_RDONLY);
			}
		}
	}

	bool Flush()
	{
		NoteLoss(std::fflush(stdout) == 0);
		return LossReason == 0;
	}

	bool Finish()
	{
		if (!Flush())
		{
			Write(stderr, std::string("velmorant: the output could not be written: ") + std::strerror(LossReason) + ". What was done is done; free space, or read all of the output, and look again.");
		}
		return LossReason == 0;
	}

	void Print(const FString& Line)
	{
		PrintUtf8(TCHAR_TO_UTF8(*Line));
	}

	void PrintUtf8(std::string_view Line)
	{
		NoteLoss(Write(stdout, Line));
	}

	void PrintError(const FString& Line)
	{
		Flush(); // both may go to the same file
		Write(stderr, TCHAR_TO_UTF8(*Line));
	}

	void PrintProblems(const TArray<FHostProblem>& Problems)
	{
		for (const FHostProblem& Problem : Problems)
		{
			PrintError(HostProblems::ToString(Problem));
		}
	}
}
