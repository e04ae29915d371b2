// Copyright Velmorant. All Rights Reserved.

#include "Manual.h"

namespace Manual
{
	/** Text that the formatter prints as it is. */
	std::string Escape(const std::string& Text)
	{
		const std::string Plain = ArgumentTable::Replace(ArgumentTable::Replace(Text, "\\", "\\e"), "-", "\\-");
		const bool bRequest = !Plain.empty() && (Plain[0] == '.' || Plain[0] == '\'');
		return (bRequest ? "\\&" : "") + ArgumentTable::Replace(ArgumentTable::Replace(Plain, "\n.", "\n\\&."), "…", "...");
	}

	std::string Bold(const std::string& Text)
	{
		return "\\fB" + Escape(Text) + "\\fR";
	}

	std::string Italic(const std::string& Text)
	{
		return "\\fI" + Escape(Text) + "\\fR";
	}

	std::string GetUsage(const CLI::App& App, const CLI::App& Command)
	{
		std::string Text = Bold(App.get_name() + " " + Command.get_name());
		for (const CLI::Option* Option : ArgumentTable::GetPositionals(Command))
		{
			const std::string Name = Italic(Option->get_name(true)) + (Option->get_expected_max() > 1 ? " ..." : "");
			Text += Option->get_required() ? " " + Name : " [" + Name + "]";
		}
		for (const CLI::Option* Option : ArgumentTable::GetSwitches(Command))
		{
			const std::string Value = ArgumentTable::GetValueName(*Option);
			Text += " [" + Bold(ArgumentTable::GetSwitch(*Option)) + (Value.empty() ? "" : " " + Italic(Value)) + "]";
		}
		return Text + "\n";
	}

	std::string DescribeOption(const CLI::Option& Option, const std::string& Name)
	{
		const std::vector<std::string> Choices = ArgumentTable::GetChoices(Option);
		const std::string Words = Choices.empty() ? "" : " (" + ArgumentTable::Join(Choices, ", ") + ")";
		return ".TP\n" + Name + "\n" + Escape(Option.get_description() + Words) + "\n";
	}

	std::string DescribeCommand(const CLI::App& App, const CLI::App& Command)
	{
		std::string Text = ".SS " + Command.get_name() + "\n" + GetUsage(App, Command) + ".PP\n" + Escape(Command.get_description()) + ".\n";
		for (const CLI::Option* Option : ArgumentTable::GetPositionals(Command))
		{
			Text += DescribeOption(*Option, Italic(Option->get_name(true)));
		}
		for (const CLI::Option* Option : ArgumentTable::GetSwitches(Command))
		{
			const std::string Value = ArgumentTable::GetValueName(*Option);
			Text += DescribeOption(*Option, Bold(ArgumentTable::GetSwitch(*Option)) + (Value.empty() ? "" : " " + Italic(Value)));
		}
		return Command.get_footer().empty() ? Text : Text + ".PP\n" + Escape(Command.get_footer()) + "\n";
	}

	const char* const Environment =
		".SH ENVIRONMENT\n"
		".TP\n\\fBNO_COLOR\\fR\nSet to anything, nothing is coloured unless \\fB\\-\\-color always\\fR asks for it.\n"
		".TP\n\\fBVELMORANT_NO_KEYRING\\fR\nSet to anything, the desktop's secret store is left alone.\n"
		".TP\n\\fBVELMORANT_SHOW_FAULTS\\fR\nSet to anything, a fault of the program adds what its programmers want to know.\n"
		".TP\n\\fBXDG_CONFIG_HOME\\fR, \\fBXDG_STATE_HOME\\fR\nBelow them, in \\fIvelmorant\\fR, stand what is remembered of a sign\\-in, and what repairs added.\n";

	std::string Make(const CLI::App& App, const std::vector<std::string>& ScriptLines)
	{
		const std::string Name = App.get_name();
		std::string Text = ".TH VELMORANT 1 \"\" \"" + App.version() + "\" \"User Commands\"\n.SH NAME\n" + Name + " \\- checks and drives Unreal projects that use the Velmorant toolkit\n.SH SYNOPSIS\n";
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Text += GetUsage(App, *Command) + ".br\n";
		}
		Text += ".SH DESCRIPTION\n" + Escape(App.get_description()) + "\n.SH COMMANDS\n";
		for (const CLI::App* Command : ArgumentTable::GetCommands(App))
		{
			Text += DescribeCommand(App, *Command);
		}
		Text += ".SH SCRIPTS\nOne command a line. Words are separated by blanks, double quotes keep blanks together, and # begins a comment.\n.PP\n.nf\n";
		for (const std::string& Line : ScriptLines)
		{
			Text += Escape(Line) + "\n";
		}
		return Text + ".fi\n" + Environment;
	}
}
