// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <chrono>
#include <string>
#include <vector>

/** Small programs of the desktop, asked one question each. */
namespace ProgramCall
{
	struct FAnswer
	{
		/** Of the program; NotStarted or TimedOut without one. */
		int ExitStatus = NotStarted;
		std::string Output;
		std::string Errors;

		static constexpr int NotStarted = -1;
		static constexpr int TimedOut = -2;
	};

	/** Full path of a program that PATH leads to; empty when there is none. */
	std::string Find(const std::string& Name);

	/**
	 * Runs it and waits, for Limit at most: then it is ended, and what it started with it. What it reads and prints lies in memory only, never on disk
	 * or on its command line.
	 *
	 * @param Words the program's full path and its arguments
	 */
	FAnswer Run(const std::vector<std::string>& Words, const std::string& Input, std::chrono::milliseconds Limit);
}
