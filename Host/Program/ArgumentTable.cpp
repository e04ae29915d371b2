// Copyright Velmorant. All Rights Reserved.

#include "ArgumentTable.h"

#include <sstream>

namespace ArgumentTable
{
	std::vector<const CLI::App*> GetCommands(const CLI::App& App)
	{
		return App.get_subcommands([](const CLI::App*) { return true; });
	}

	std::vector<const CLI::Option*> GetPositionals(const CLI::App& Command)
	{
		return Command.get_options([](const CLI::Option* Option) { return Option->get_positional(); });
	}

	std::vector<const CLI::Option*> GetSwitches(const CLI::App& Command)
	{
		return Command.get_options([](const CLI::Option* Option) { return Option->nonpositional(); });
	}

	std::string GetSwitch(const CLI::Option& Option)
	{
		return "--" + Option.get_lnames().front();
	}

	std::string GetValueName(const CLI::Option& Option)
	{
		const std::string Name = Option.get_type_size() == 0 ? std::string() : Option.get_type_name();
		return Name.substr(0, Name.find(':'));
	}

	/** The library writes them behind the name: "NAME:{Linux,Mac,Windows}". */
	std::vector<std::string> GetChoices(const CLI::Option& Option)
	{
		const std::string Name = Option.get_type_name();
		const size_t Begin = Name.find('{');
		const size_t End = Name.find('}');
		std::vector<std::string> Choices;
		if (Begin != std::string::npos && End != std::string::npos)
		{
			std::istringstream Words(Name.substr(Begin + 1, End - Begin - 1));
			for (std::string Word; std::getline(Words, Word, ',');)
			{
				Choices.push_back(Word);
			}
		}
		return Choices;
	}

	std::string Join(const std::vector<std::string>& Words, const char* Between)
	{
		std::string Text;
		for (const std::string& Word : Words)
		{
			Text += (Text.empty() ? "" : Between) + Word;
		}
		return Text;
	}

	std::string Replace(std::string Text, const std::string& Old, const std::string& New)
	{
		for (size_t Place = Text.find(Old); Place != std::string::npos; Place = Text.find(Old, Place + New.size()))
		{
			Text.replace(Place, Old.size(), New);
		}
		return Text;
	}
}
