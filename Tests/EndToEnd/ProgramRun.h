// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

/** What a finished program left behind. */
struct FProgramResult
{
	int ExitStatus = -1; // -1 when a signal ended it
	std::string Output;
	std::string Errors;
	long PeakKilobytes = 0; // of memory, resident
};

/** The velmorant program as a process of its own. What it prints must not give the sample's secrets away (Canary). */
class FProgramRun
{
public:
	using FEnvironment = std::vector<std::pair<std::string, std::string>>;

	/** What is run. */
	static std::string Program;

	/** Where the standard output goes. */
	enum class EOutput
	{
		Kept,
		FullDisk,
		ClosedPipe
	};

	/** Starts it; both outputs go to files that are removed with this object. A program that hangs is ended after two minutes. */
	explicit FProgramRun(const std::vector<std::string>& Arguments, const FEnvironment& Environment = {}, EOutput Output = EOutput::Kept, const std::string& Input = {});
	~FProgramRun();
	FProgramRun(const FProgramRun&) = delete;
	FProgramRun& operator=(const FProgramRun&) = delete;

	FProgramResult Wait();

	/** Starts it, with Input on its standard input, and waits. */
	static FProgramResult RunWithInput(const std::vector<std::string>& Arguments, const FEnvironment& Environment, const std::string& Input);

	/** Ends it at once, or does nothing when it has ended. */
	void Kill() const;

	/** Starts it and waits. */
	static FProgramResult Run(const std::vector<std::string>& Arguments, const FEnvironment& Environment = {}, EOutput Output = EOutput::Kept);

	/** The same on a terminal, where somebody types a line once Prompt shows. Output is all that the terminal shows. */
	static FProgramResult RunOnTerminal(const std::vector<std::string>& Arguments, const FEnvironment& Environment, const std::string& Prompt, const std::string& Line);

private:
	std::string Folder;
	std::string Script; // text of the script that it runs, if any
	pid_t Process = -1;
};
