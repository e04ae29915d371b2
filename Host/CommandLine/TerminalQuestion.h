// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>

/** Asks the person at the terminal. */
namespace TerminalQuestion
{
	/**
	 * Shows Prompt on the terminal and reads a line that the terminal does not show. Signals take their usual course, and leave a terminal
	 * behind that echoes again. @return false when the standard input is no terminal, or it ends before the line does
	 */
	bool Ask(const std::string& Prompt, std::string& OutLine);
}
