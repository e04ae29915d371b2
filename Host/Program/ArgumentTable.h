// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <string>
#include <vector>

/** What the program's arguments say of themselves: the one table that its help, its manual and its completions come from. */
namespace ArgumentTable
{
	/** In the order in which they were added. */
	std::vector<const CLI::App*> GetCommands(const CLI::App& App);

	/** Those without a dash in front, and those with. */
	std::vector<const CLI::Option*> GetPositionals(const CLI::App& Command);
	std::vector<const CLI::Option*> GetSwitches(const CLI::App& Command);

	/** "--platform". */
	std::string GetSwitch(const CLI::Option& Option);

	/** What stands for its value, "FILE"; empty for a flag. */
	std::string GetValueName(const CLI::Option& Option);

	/** The words that its value can be; none when it may be anything. */
	std::vector<std::string> GetChoices(const CLI::Option& Option);

	std::string Join(const std::vector<std::string>& Words, const char* Between);

	/** Every Old becomes New. */
	std::string Replace(std::string Text, const std::string& Old, const std::string& New);
}
