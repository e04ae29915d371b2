// Copyright Velmorant. All Rights Reserved.

#include "TerminalQuestion.h"

#include "ProgressLine.h"
#include "TerminalText.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace TerminalQuestion
{
	volatile std::sig_atomic_t Caught = 0; // a signal that came while the echo was off

	/** The terminal without echo, and signals noted instead of obeyed, for as long as it lives. */
	class FSilence
	{
	public:
		explicit FSilence(int InTerminal)
			: Terminal(InTerminal)
		{
			Caught = 0;
			struct sigaction Action = {};
			Action.sa_handler = [](int Signal) { Caught = Signal; }; // no SA_RESTART: the read is to end
			for (int Index = 0; Index < NumSignals; ++Index)
			{
				sigaction(Signals[Index], &Action, &OldActions[Index]);
			}
			tcgetattr(Terminal, &OldMode);
			termios Mode = OldMode;
			Mode.c_lflag &= ~static_cast<tcflag_t>(ECHO);
			tcsetattr(Terminal, TCSAFLUSH, &Mode);
		}

		~FSilence()
		{
			tcsetattr(Terminal, TCSAFLUSH, &OldMode);
			for (int Index = 0; Index < NumSignals; ++Index)
			{
				sigaction(Signals[Index], &OldActions[Index], nullptr);
			}
		}

		FSilence(const FSilence&) = delete;
		FSilence& operator=(const FSilence&) = delete;

	private:
		static constexpr int NumSignals = 5;
		static constexpr int Signals[NumSignals] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};

		int Terminal;
		termios OldMode = {};
		struct sigaction OldActions[NumSignals] = {};
	};

	void Show(int Terminal, const std::string& Text)
	{
		(void)!write(Terminal, Text.data(), Text.size()); // nothing can be done about it here; the read tells
	}

	/** Up to the line's end. False when the input ends before, or a signal came. */
	bool ReadLine(int Terminal, std::string& OutLine)
	{
		OutLine.clear();
		char Char = 0;
		ssize_t Count = 0;
		while (Caught == 0 && ((Count = read(Terminal, &Char, 1)) == 1 || (Count < 0 && errno == EINTR)))
		{
			if (Count == 1 && Char == '\n')
			{
				return true;
			}
			if (Count == 1)
			{
				OutLine += Char;
			}
		}
		return false;
	}

	bool Ask(const std::string& Prompt, std::string& OutLine)
	{
		const int Terminal = isatty(STDIN_FILENO) ? open("/dev/tty", O_RDWR | O_CLOEXEC) : -1;
		if (Terminal < 0)
		{
			return false;
		}
		const FProgressLine::FPause Pause;
		bool bRead = false;
		do
		{
			{
				const FSilence Silence(Terminal);
				Show(Terminal, TerminalText::Escape(Prompt));
				bRead = ReadLine(Terminal, OutLine);
				Show(Terminal, "\n"); // the one that was typed did not show
			}
			if (Caught != 0)
			{
				raise(Caught); // ends the program, or stops it until it is to go on, and ask again
			}
		} while (Caught != 0);
		close(Terminal);
		return bRead;
	}
}
