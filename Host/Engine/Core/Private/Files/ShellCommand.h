// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>

/** Commands of the person's own, such as those of a version control system. */
namespace ShellCommand
{
	/**
	 * Has the shell run the command with one more argument, and waits. It reads nothing; what it prints goes to the error output, which
	 * leaves the program's report as it is.
	 *
	 * @return its exit status; 127 also when there is no shell, 128 and more when a signal ended it
	 */
	int Run(const std::string& Command, const std::string& Argument, const std::string& WorkingDirectory);
}
