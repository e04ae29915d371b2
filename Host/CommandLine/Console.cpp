// Copyright Velmorant. All Rights Reserved.

#include "Console.h"

#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "ProgressLine.h"
#include "TerminalText.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace Console
{
	int LossReason = 0; // errno of the first write to the standard output that failed

	bool Put(std::FILE* File, std::string_view Text)
	{
		return Text.empty() || std::fwrite(Text.data(), 1, Text.size(), File) == Text.size();
	}

	bool Write(std::FILE* File, std::string_view Line, ETextStyle Style)
	{
		const FProgressLine::FPause Pause;
		const int Output = fileno(File);
		return Put(File, TerminalStyle::Begin(Output, Style)) && Put(File, Line) && Put(File, TerminalStyle::End(Output, Style)) && Put(File, "\n");
	}

	void NoteLoss(bool bWritten)
	{
		if (!bWritten && LossReason == 0)
		{
			LossReason = errno != 0 ? errno : EIO;
		}
	}

	/** Leaves nothing half written, says why nothing more comes, and ends as the signal would have. Only what a handler may do. */
	void EndBySignal(int Signal)
	{
		HostFiles::RemoveUnfinished();
		constexpr std::string_view Message = "velmorant: ended by a signal; files that were written are whole\n";
		(void)!write(STDERR_FILENO, Message.data(), Message.size());
		std::signal(Signal, SIG_DFL);
		raise(Signal);
	}

	void Prepare()
	{
		std::signal(SIGPIPE, SIG_IGN); // a write to a pipe that nobody reads fails instead
		std::signal(SIGXFSZ, SIG_IGN); // so does one beyond the largest file that is allowed
		for (const int Signal : {SIGTERM, SIGINT, SIGHUP})
		{
			if (std::signal(Signal, &EndBySignal) == SIG_IGN)
			{
				std::signal(Signal, SIG_IGN); // as with nohup
			}
		}
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
			Write(stderr, std::string("velmorant: the output could not be written: ") + std::strerror(LossReason) + ". What was done is done; free space, or read all of the output, and look again.", ETextStyle::Bad);
		}
		return LossReason == 0;
	}

	void Print(const FString& Line, ETextStyle Style)
	{
		PrintUtf8(TCHAR_TO_UTF8(*Line), Style);
	}

	void PrintUtf8(std::string_view Line, ETextStyle Style)
	{
		NoteLoss(Write(stdout, TerminalText::Escape(Line), Style));
	}

	void PrintLines(const FString& Text)
	{
		PrintExact(TerminalText::Escape(TCHAR_TO_UTF8(*Text), TerminalText::ELineFeeds::Keep));
	}

	void PrintExact(std::string_view Text)
	{
		NoteLoss(Write(stdout, Text, ETextStyle::Plain));
	}

	void PrintError(const FString& Line, TerminalText::ELineFeeds LineFeeds, ETextStyle Style)
	{
		Flush(); // both may go to the same file
		Write(stderr, TerminalText::Escape(TCHAR_TO_UTF8(*Line), LineFeeds), Style);
	}

	void PrintError(const FString& Line, ETextStyle Style)
	{
		PrintError(Line, TerminalText::ELineFeeds::Escape, Style);
	}

	void PrintErrorLines(const FString& Text)
	{
		PrintError(Text, TerminalText::ELineFeeds::Keep, ETextStyle::Bad);
	}

	void PrintDifference(std::string_view Difference)
	{
		const bool bShown = isatty(STDOUT_FILENO) != 0;
		while (!Difference.empty())
		{
			const size_t End = Difference.find('\n');
			const std::string_view Line = Difference.substr(0, End);
			NoteLoss(Write(stdout, bShown ? TerminalText::Escape(Line) : std::string(Line), TerminalStyle::OfDifferenceLine(Line)));
			Difference.remove_prefix(End == std::string_view::npos ? Difference.size() : End + 1);
		}
	}

	void PrintProblems(const TArray<FHostProblem>& Problems)
	{
		for (const FHostProblem& Problem : Problems)
		{
			PrintError(HostProblems::ToString(Problem));
		}
	}
}
