// Copyright Velmorant. All Rights Reserved.

#include "ProgressLine.h"

#include "Containers/StringConv.h"
#include "TerminalStyle.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

namespace ProgressLine
{
	using FClock = std::chrono::steady_clock;

	constexpr std::chrono::milliseconds Patience(1000); // nobody wonders before that
	constexpr std::chrono::milliseconds BetweenLines(250);
	constexpr size_t UsualWidth = 80;

	std::recursive_mutex Terminal; // whoever holds it may write
	const void* Topmost = nullptr; // the writer that may show
	bool bShown = false;

	void Send(std::string_view Text)
	{
		(void)!write(STDERR_FILENO, Text.data(), Text.size()); // a line that does not show harms nobody
	}

	/** Of the terminal, less a column: a full line would wrap. */
	size_t GetWidth()
	{
		winsize Size = {};
		const bool bKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &Size) == 0 && Size.ws_col > 1;
		return (bKnown ? Size.ws_col : UsualWidth) - 1;
	}

	/** Nothing that a terminal would obey. */
	std::string MakeHarmless(std::string Text)
	{
		std::replace_if(
			Text.begin(), Text.end(), [](char Char) { return static_cast<unsigned char>(Char) < 0x20 || static_cast<unsigned char>(Char) >= 0x7f; }, '?');
		return Text;
	}
}

/** A thread of its own: what takes long cannot say so itself. */
class FProgressLine::FWriter
{
public:
	explicit FWriter(std::string InWhat)
		: What(std::move(InWhat))
		, Outer(ProgressLine::Topmost)
		, Thread([this] { Run(); })
	{
		const std::lock_guard Lock(ProgressLine::Terminal);
		ProgressLine::Topmost = this;
	}

	~FWriter()
	{
		{
			const std::lock_guard Lock(Wake);
			bEnd = true;
		}
		Ended.notify_all();
		Thread.join();
		const FPause Pause;
		ProgressLine::Topmost = Outer;
	}

private:
	void Run()
	{
		std::unique_lock Lock(Wake);
		for (auto Wait = ProgressLine::Patience; !Ended.wait_for(Lock, Wait, [this] { return bEnd; }); Wait = ProgressLine::BetweenLines)
		{
			Show();
		}
	}

	void Show() const
	{
		const std::lock_guard Lock(ProgressLine::Terminal);
		if (ProgressLine::Topmost == this)
		{
			const auto Seconds = std::chrono::duration_cast<std::chrono::seconds>(ProgressLine::FClock::now() - Start).count();
			const std::string Time = " … " + std::to_string(Seconds) + " s";
			ProgressLine::bShown = true;
			ProgressLine::Send("\r\x1b[K" + What.substr(0, ProgressLine::GetWidth() - std::min(ProgressLine::GetWidth(), Time.size())) + Time);
		}
	}

	const std::string What;
	const void* const Outer;
	const ProgressLine::FClock::time_point Start = ProgressLine::FClock::now();
	std::mutex Wake;
	std::condition_variable Ended;
	bool bEnd = false;
	std::thread Thread; // last: it uses all others
};

FProgressLine::FProgressLine(const FString& What)
{
	if (TerminalStyle::IsTerminal(STDERR_FILENO))
	{
		Writer = std::make_unique<FWriter>(ProgressLine::MakeHarmless(TCHAR_TO_UTF8(*What)));
	}
}

FProgressLine::~FProgressLine() = default;

FProgressLine::FPause::FPause()
{
	ProgressLine::Terminal.lock();
	if (ProgressLine::bShown)
	{
		ProgressLine::Send("\r\x1b[K");
		ProgressLine::bShown = false;
	}
}

FProgressLine::FPause::~FPause()
{
	ProgressLine::Terminal.unlock();
}
