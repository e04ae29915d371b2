// Copyright Velmorant. All Rights Reserved.

#include "Completion.h"

namespace Completion
{
	/** In single quotes of any of the shells. */
	std::string Quote(const std::string& Text)
	{
		return "'" + ArgumentTable::Replace(Text, "'", "'\\''") + "'";
	}

	std::vector<std::string> GetCommandNames(const CLI::App& App)
	{
		std::vector<std::string> Names;
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Names.push_back(Command->get_name());
		}
		return Names;
	}

	//~ bash

	/** The arms of a case that say which words may follow a command's switch, and a command itself. */
	std::string MakeBashArms(const CLI::App& Command)
	{
		std::string Arms;
		std::vector<std::string> Words;
		for (const CLI::Option* Option : ArgumentTable::GetSwitches(Command))
		{
			Words.push_back(ArgumentTable::GetSwitch(*Option));
			const std::vector<std::string> Choices = ArgumentTable::GetChoices(*Option);
			if (!Choices.empty())
			{
				Arms += "\t\t'" + Command.get_name() + " " + Words.back() + "') words='" + ArgumentTable::Join(Choices, " ") + "' ;;\n";
			}
			else if (!ArgumentTable::GetValueName(*Option).empty())
			{
				Arms += "\t\t'" + Command.get_name() + " " + Words.back() + "') ;;\n"; // a file
			}
		}
		for (const CLI::Option* Option : ArgumentTable::GetPositionals(Command))
		{
			const std::vector<std::string> Choices = ArgumentTable::GetChoices(*Option);
			Words.insert(Words.end(), Choices.begin(), Choices.end());
		}
		return Arms + "\t\t'" + Command.get_name() + " '*) words='" + ArgumentTable::Join(Words, " ") + "' ;;\n";
	}

	std::string MakeBash(const CLI::App& App)
	{
		std::string Text =
			"# Completion of velmorant for bash.\n"
			"_velmorant()\n{\n"
			"\tlocal current=${COMP_WORDS[COMP_CWORD]} words=\n"
			"\tcase \"${COMP_WORDS[1]} ${COMP_WORDS[COMP_CWORD-1]}\" in\n";
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Text += MakeBashArms(*Command);
		}
		Text +=
			"\tesac\n"
			"\tif [ \"$COMP_CWORD\" -eq 1 ]; then\n"
			"\t\twords='" +
			ArgumentTable::Join(GetCommandNames(App), " ") + " --help --version'\n"
															 "\tfi\n"
															 "\tCOMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
															 "}\n"
															 "complete -o default -F _velmorant velmorant\n";
		return Text;
	}

	//~ zsh

	std::string MakeZshSwitch(const CLI::Option& Option)
	{
		std::string Description = ArgumentTable::Replace(Option.get_description(), "[", "\\[");
		Description = ArgumentTable::Replace(Description, "]", "\\]");
		std::string Argument = ArgumentTable::GetSwitch(Option) + "[" + Description + "]";
		const std::string Value = ArgumentTable::GetValueName(Option);
		const std::vector<std::string> Choices = ArgumentTable::GetChoices(Option);
		if (!Value.empty())
		{
			Argument += ":" + Value + ":" + (Choices.empty() ? "_files" : "(" + ArgumentTable::Join(Choices, " ") + ")");
		}
		return Quote(Argument);
	}

	std::string MakeZsh(const CLI::App& App)
	{
		std::string Text =
			"#compdef velmorant\n"
			"_velmorant() {\n"
			"\tlocal -a commands\n"
			"\tcommands=(\n";
		std::string Arms;
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Text += "\t\t" + Quote(Command->get_name() + ":" + Command->get_description()) + "\n";
			Arms += "\t\t" + Command->get_name() + ")\n\t\t\t_arguments";
			for (const CLI::Option* Option : ArgumentTable::GetSwitches(*Command))
			{
				Arms += " \\\n\t\t\t\t" + MakeZshSwitch(*Option);
			}
			for (const CLI::Option* Option : ArgumentTable::GetPositionals(*Command))
			{
				const std::vector<std::string> Choices = ArgumentTable::GetChoices(*Option);
				const bool bMany = Option->get_expected_max() > 1;
				Arms += " \\\n\t\t\t\t" + Quote((bMany ? "*:" : ":") + Option->get_name(true) + ":" + (Choices.empty() ? "_files" : "(" + ArgumentTable::Join(Choices, " ") + ")"));
			}
			Arms += "\n\t\t\t;;\n";
		}
		return Text + "\t)\n"
					  "\tif (( CURRENT == 2 )); then\n"
					  "\t\t_describe -t commands command commands\n"
					  "\t\treturn\n"
					  "\tfi\n"
					  "\tlocal command=$words[2]\n"
					  "\tshift words\n"
					  "\t(( CURRENT-- ))\n"
					  "\tcase $command in\n" +
			Arms + "\tesac\n"
				   "}\n"
				   "if [[ $zsh_eval_context[-1] == loadautofunc ]]; then\n"
				   "\t_velmorant \"$@\"\n"
				   "else\n"
				   "\tcompdef _velmorant velmorant\n"
				   "fi\n";
	}

	//~ fish

	std::string MakeFish(const CLI::App& App)
	{
		std::string Text = "# Completion of velmorant for fish.\n";
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Text += "complete -c velmorant -n __fish_use_subcommand -f -a " + Command->get_name() + " -d " + Quote(Command->get_description()) + "\n";
			const std::string Start = "complete -c velmorant -n '__fish_seen_subcommand_from " + Command->get_name() + "'";
			for (const CLI::Option* Option : ArgumentTable::GetSwitches(*Command))
			{
				const std::vector<std::string> Choices = ArgumentTable::GetChoices(*Option);
				std::string Value = ArgumentTable::GetValueName(*Option).empty() ? "" : " -r -F";
				Value = Choices.empty() ? Value : " -x -a " + Quote(ArgumentTable::Join(Choices, " "));
				Text += Start + " -l " + Option->get_lnames().front() + Value + " -d " + Quote(Option->get_description()) + "\n";
			}
			for (const CLI::Option* Option : ArgumentTable::GetPositionals(*Command))
			{
				const std::vector<std::string> Choices = ArgumentTable::GetChoices(*Option);
				Text += Choices.empty() ? "" : Start + " -f -a " + Quote(ArgumentTable::Join(Choices, " ")) + "\n";
			}
		}
		return Text;
	}

	struct FShell
	{
		const char* Name;
		std::string (*Make)(const CLI::App& App);
	};

	const FShell Shells[] = {{"bash", &MakeBash}, {"zsh", &MakeZsh}, {"fish", &MakeFish}};

	std::vector<std::string> GetShells()
	{
		std::vector<std::string> Names;
		for (const FShell& Shell : Shells)
		{
			Names.emplace_back(Shell.Name);
		}
		return Names;
	}

	std::string Make(const CLI::App& App, const std::string& Shell)
	{
		for (const FShell& Each : Shells)
		{
			if (Shell == Each.Name)
			{
				return Each.Make(App);
			}
		}
		return {};
	}
}
