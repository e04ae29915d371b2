// Copyright Velmorant. All Rights Reserved.

// Before the engine's headers: those define a macro named check, and the library has functions of that name.
#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "DesktopArguments.h"

#include "Console.h"
#include "Containers/StringConv.h"
#include "Refusal.h"

#include <sstream>
#include <string>

namespace DesktopArguments
{
	FString ToText(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FDesktopArguments& OutArguments)
	{
		CLI::App App("The Velmorant toolkit's editor in a window, without the engine.", "velmorant-editor");
		App.set_version_flag("--version", std::string("velmorant-editor ") + VELMORANT_VERSION);
		std::string Project;
		std::string Service;
		std::string Theme;
		std::string Script;
		std::string Screenshot;
		double Pace = 0.0;
		App.add_option("PROJECT", Project, "A .uproject file, or the folder that holds one")->required();
		App.add_option("--service", Service, "The data file that the toolkit's service answers from")->type_name("FILE");
		App.add_option("--theme", Theme, "Light or dark; as the desktop is unless given")->transform(CLI::IsMember({"light", "dark"}, CLI::ignore_case))->type_name("NAME");
		App.add_option("--script", Script, "Do in the window what the script says, and end")->type_name("FILE");
		App.add_option("--pace", Pace, "Seconds to wait after each step of the script, to look on")->transform(CLI::Range(0.0, 60.0))->type_name("SECONDS");
		App.add_option("--screenshot", Screenshot, "Draw the window into pictures in this folder, and end")->type_name("FOLDER");
		bool bWelcome = false;
		App.add_flag("--welcome", bWelcome, "Say what to try with the sample, until that is closed once");
		try
		{
			App.parse(Count, Values);
		}
		catch (const CLI::ParseError& Error)
		{
			std::ostringstream Output;
			std::ostringstream Errors;
			if (App.exit(Error, Output, Errors) == 0)
			{
				Console::PrintLines(ToText(Output.str()).TrimEnd());
				return EExitStatus::Done;
			}
			Refusal::Print(EExitStatus::Usage, {ToText(Errors.str()).TrimEnd()}, false);
			return EExitStatus::Usage;
		}
		OutArguments = FDesktopArguments{ToText(Project), ToText(Service), ToText(Theme), ToText(Script), bWelcome, ToText(Screenshot), Pace};
		return TOptional<EExitStatus>();
	}
}
