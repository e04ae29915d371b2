// Copyright Velmorant. All Rights Reserved.

// Before the engine's headers: those define a macro named check, and the library has functions of that name.
#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "Completion.h"
#include "Manual.h"

#include "Arguments.h"
#include "Console.h"
#include "Containers/StringConv.h"
#include "HostConfig.h"
#include "Refusal.h"
#include "Run/ScriptTopics.h"
#include "Scripts/ServiceFile.h"
#include "Suggestions.h"
#include "TerminalStyle.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace Arguments
{
	FString ToText(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	/** As they stand on the command line, UTF-8. */
	struct FRaw
	{
		std::string Project;
		std::string Script;
		std::string Service;
		std::string Platform;
		std::string Filter;
		std::string Report;
		std::string Compare;
		std::string Plugin;
		std::vector<std::string> Plugins;
		std::string Color = "auto";
		std::string Shell;
		bool bUnattended = false;
		bool bCommandlet = false;
		bool bNullRhi = false;
		bool bNoNotifications = false;
		bool bDiff = false;
		bool bRepair = false;
		bool bUndo = false;
		bool bJson = false;
		bool bList = false;
		bool bDryRun = false;
		bool bWithTests = false;
		bool bForce = false;
		bool bAllowToolkitContent = false;

		FEditorArguments GetEditor() const { return {ToText(Platform), bUnattended, bCommandlet, bNullRhi, bNoNotifications}; }
	};

	std::vector<std::string> GetPlatforms()
	{
		std::vector<std::string> Names;
		for (const FString& Name : HostConfig::GetPlatforms())
		{
			Names.emplace_back(TCHAR_TO_UTF8(*Name));
		}
		return Names;
	}

	CLI::App* AddCommand(CLI::App& App, FRaw& Raw, const char* Name, const char* Description)
	{
		CLI::App* const Command = App.add_subcommand(Name, Description);
		Command->add_option("--color", Raw.Color, "Whether to colour what people read; auto: on a terminal, unless NO_COLOR is set")->transform(CLI::IsMember({"auto", "always", "never"}))->type_name("WHEN");
		return Command;
	}

	/** How the editor is started. */
	void AddEditor(CLI::App& Command, FRaw& Raw)
	{
		Command.add_option("--platform", Raw.Platform, "Whose configuration counts; this machine's unless given")->transform(CLI::IsMember(GetPlatforms(), CLI::ignore_case))->type_name("NAME");
		Command.add_flag("--unattended", Raw.bUnattended, "Nobody is asked: questions take their defaults");
		Command.add_flag("--nullrhi", Raw.bNullRhi, "A user interface that is not drawn");
		Command.add_flag("--no-notifications", Raw.bNoNotifications, "Notifications are not shown, as with Slate.bAllowNotifications=0");
		Command.add_flag("--commandlet", Raw.bCommandlet, "No user interface at all, as in a cook");
	}

	CLI::App* AddCheck(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Check = AddCommand(App, Raw, "check", "Look for the unit volumes' collision profile in a project's configuration");
		Check->add_option("PROJECT", Raw.Project, "A .uproject file, or the folder that holds one")->required();
		Check->add_flag("--diff", Raw.bDiff, "Print the lines that --repair would add, or that it added or --undo took back, as a unified difference");
		CLI::Option* const Repair = Check->add_flag("--repair", Raw.bRepair, "Add what is missing, and the engine's current profiles where there is no collision section");
		CLI::Option* const Undo = Check->add_flag("--undo", Raw.bUndo, "Take back what the last --repair added");
		Check->add_flag("--json", Raw.bJson, "Report as one JSON object");
		AddEditor(*Check, Raw);
		Undo->excludes(Repair);
		for (const char* NothingToPress : {"--no-notifications", "--commandlet"})
		{
			Repair->excludes(NothingToPress);
		}
		Check->footer("Nothing on disk changes without --repair or --undo, and nothing by a repair that would not help.\nEnds with 0 when the profile is there or was added, or the repair was taken back, 1 when it is\nmissing or the lines of the repair are not as they were, 2 for bad usage, no such project or no\nrepair to take back, 3 when a file could not be read or written, or the output not be written.");
		return Check;
	}

	CLI::App* AddRun(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Run = AddCommand(App, Raw, "run", "Do in a project what a person would do, as a script says");
		Run->add_option("PROJECT", Raw.Project, "A .uproject file, or the folder that holds one")->required();
		Run->add_option("SCRIPT", Raw.Script, "The script, one command a line; - for the standard input")->required();
		Run->add_option("--service", Raw.Service, "The data file that the toolkit's service answers from; - for the standard input")->type_name("FILE");
		AddEditor(*Run, Raw);
		Run->add_flag("--json", Raw.bJson, "Report each step as a JSON object in a line of its own");
		Run->add_flag("--allow-toolkit-content", Raw.bAllowToolkitContent, "Let the script change the toolkit's own content, not only the project");
		Run->footer("Ends with 0 when all went well, 1 when an expectation did not hold, 2 for bad usage or\nno such project, 3 when the script is wrong or could not go on, a file or the service's data\ncould not be read or written, or the output could not be written.");
		return Run;
	}

	CLI::App* AddAutomation(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Automation = AddCommand(App, Raw, "automation", "Run the toolkit's automation tests, which the engine runs as well");
		Automation->add_option("PROJECT", Raw.Project, "A .uproject file, or the folder that holds one; --list and --compare do without");
		Automation->add_option("FILTER", Raw.Filter, "Only tests whose path contains this; several joined by +");
		CLI::Option* const List = Automation->add_flag("--list", Raw.bList, "Print the paths of the tests, and run none");
		CLI::Option* const Report = Automation->add_option("--report", Raw.Report, "Write index.json there, as the engine does")->type_name("FOLDER");
		CLI::Option* const Compare = Automation->add_option("--compare", Raw.Compare, "Print what differs from a run in the engine: the index.json that it exported; - for the standard input")->type_name("REPORT");
		Automation->add_flag("--with-repair", Raw.bRepair, "Also run the test of the repair, which edits DefaultEngine.ini and puts it back");
		Compare->excludes(List)->excludes(Report);
		Report->excludes(List);
		Automation->footer("Ends with 0 when all tests pass, or engine and host agree but for what is meant to differ, 1 when a\ntest fails or they differ, 2 for bad usage, no such project or no such test, 3 when a file could not\nbe read or written, or a report is not whole.");
		return Automation;
	}

	CLI::App* AddInstall(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Install = AddCommand(App, Raw, "install", "Put the editor module into the toolkit's plugin");
		Install->add_option("PLUGIN-FOLDER", Raw.Plugin, "The folder that holds VelmorantPro.uplugin")->required();
		Install->add_flag("--dry-run", Raw.bDryRun, "Change nothing, and print what would change as a unified difference");
		Install->add_flag("--with-tests", Raw.bWithTests, "The module's tests for the engine as well, as a module of their own");
		Install->add_flag("--force", Raw.bForce, "Overwrite files of the module that differ");
		Install->footer("Nothing is changed before all is checked: the descriptor, the companions that the module needs,\nthe images of its style, and the files that are there. Ends with 0 when the module is in its\nplace, 1 when something keeps it from being installed, 2 for bad usage or a folder that is not\nthe toolkit's plugin, 3 when a file could not be read or written, or the output not be written.");
		return Install;
	}

	CLI::App* AddContract(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Contract = AddCommand(App, Raw, "contract", "Compare plugins' companion modules with what the editor module expects of them");
		Contract->add_option("PLUGIN-FOLDER", Raw.Plugins, "Folders of the plugins that hold VelmorantSDK, VelmorantPro and VelmorantProUI;\nthose beside them are looked into as well")->required();
		Contract->footer("Ends with 0 when the companions are as expected in all that the toolkit has given, 1 when they\nare not, 2 for bad usage or no such folder, 3 when a file could not be read, or the output not\nbe written.");
		return Contract;
	}

	/** What makes the program known to shells and to man; both are made from the arguments above. */
	struct FSelfDescription
	{
		const CLI::App* Completion;
		const CLI::App* Manual;
	};

	FSelfDescription AddSelfDescription(CLI::App& App, FRaw& Raw)
	{
		CLI::App* const Shells = App.add_subcommand("completion", "Print what makes a shell complete this program's arguments");
		Shells->add_option("SHELL", Raw.Shell, "Whose: bash, zsh or fish")->required()->transform(CLI::IsMember(Completion::GetShells()));
		Shells->footer("An installed program brings them along, where shells look for them.");
		CLI::App* const Page = App.add_subcommand("manual", "Print this program's manual page, as man reads it");
		return {Shells, Page};
	}

	/** Every script command and expectation, as they are written. */
	std::vector<std::string> GetScriptLines()
	{
		std::vector<std::string> Lines;
		const auto Add = [&Lines](const TCHAR* Before, const FScriptSyntax& Syntax) { Lines.emplace_back(TCHAR_TO_UTF8(*FString::Printf(TEXT("%s%s %s"), Before, Syntax.Name, Syntax.Usage).TrimEnd())); };
		for (const FScriptTopic& Topic : ScriptTopics::GetAll())
		{
			for (const FScriptCommand& Command : Topic.Commands)
			{
				Add(TEXT(""), Command.Syntax);
			}
			for (const FScriptExpectation& Expectation : Topic.Expectations)
			{
				Add(TEXT("expect [no] "), Expectation.Syntax);
			}
		}
		return Lines;
	}

	TArray<FString> GetCommandNames(const CLI::App& App)
	{
		TArray<FString> Names;
		for (const CLI::App* Command : App.get_subcommands([](const CLI::App*) { return true; }))
		{
			Names.Add(ToText(Command->get_name()));
		}
		return Names;
	}

	TArray<FString> GetSwitches(const CLI::App& Command)
	{
		TArray<FString> Names;
		for (const CLI::Option* Option : Command.get_options())
		{
			for (const std::string& Name : Option->get_lnames())
			{
				Names.Add(TEXT("--") + ToText(Name));
			}
		}
		return Names;
	}

	/** A line for each argument that looks like a switch and is none. */
	void ExplainSwitches(const CLI::App& Command, TArray<FString>& OutLines)
	{
		for (const std::string& Word : Command.remaining())
		{
			const FString Unknown = ToText(Word.substr(0, Word.find('=')));
			if (Unknown.StartsWith(TEXT("--")))
			{
				OutLines.Add(Suggestions::Append(FString::Printf(TEXT("There is no %s."), *Unknown), Unknown, GetSwitches(Command)));
			}
		}
	}

	TArray<FString> ToTexts(const std::vector<std::string>& Texts)
	{
		TArray<FString> Result;
		for (const std::string& Text : Texts)
		{
			Result.Add(ToText(Text));
		}
		return Result;
	}

	/** Prints the help that was asked for, or what is wrong. */
	EExitStatus TellEnd(const CLI::App& App, const CLI::ParseError& Error, int Count, const char* const* Values)
	{
		std::ostringstream Output;
		std::ostringstream Errors;
		if (App.exit(Error, Output, Errors) == 0)
		{
			Console::PrintLines(ToText(Output.str()).TrimEnd());
			return EExitStatus::Done;
		}
		TArray<FString> Lines;
		FString Told = ToText(Errors.str()).TrimEnd();
		if (App.get_subcommands().empty() && Error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError) && Count > 1)
		{
			const FString Unknown = ToText(Values[1]);
			Lines.Add(Suggestions::Append(FString::Printf(TEXT("There is no command %s."), *Unknown), Unknown, GetCommandNames(App)));
			Told = TEXT("Run with --help for more information."); // the library would say that a subcommand is missing
		}
		Lines.Add(Told);
		if (!App.get_subcommands().empty() && Error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError))
		{
			ExplainSwitches(*App.get_subcommands().front(), Lines);
		}
		const bool bJson = std::any_of(Values, Values + Count, [](const char* Value) { return std::string_view(Value) == "--json"; });
		Refusal::Print(EExitStatus::Usage, Lines, bJson);
		return EExitStatus::Usage;
	}

	EColors ReadColors(const std::string& Word)
	{
		if (Word == "auto")
		{
			return EColors::Auto;
		}
		return Word == "always" ? EColors::Always : EColors::Never;
	}

	EExitStatus Tell(const std::string& Text)
	{
		Console::PrintExact(std::string_view(Text).substr(0, Text.size() - 1)); // less its last line end
		return EExitStatus::Done;
	}

	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FArguments& OutArguments)
	{
		CLI::App App("Checks and drives Unreal projects that use the Velmorant toolkit, without the engine.", "velmorant");
		App.set_version_flag("--version", std::string("velmorant ") + VELMORANT_VERSION);
		App.require_subcommand(1);
		FRaw Raw;
		const CLI::App* const Check = AddCheck(App, Raw);
		const CLI::App* const Run = AddRun(App, Raw);
		const CLI::App* const Install = AddInstall(App, Raw);
		const CLI::App* const Automation = AddAutomation(App, Raw);
		AddContract(App, Raw);
		const FSelfDescription Self = AddSelfDescription(App, Raw);
		try
		{
			App.parse(Count, Values);
		}
		catch (const CLI::ParseError& Error)
		{
			return TellEnd(App, Error, Count, Values);
		}
		TerminalStyle::Choose(ReadColors(Raw.Color));
		if (Self.Completion->parsed())
		{
			return Tell(Completion::Make(App, Raw.Shell));
		}
		if (Self.Manual->parsed())
		{
			return Tell(Manual::Make(App, GetScriptLines()));
		}
		if (Check->parsed())
		{
			OutArguments.Check = FCheckArguments{ToText(Raw.Project), Raw.GetEditor(), Raw.bDiff, Raw.bRepair, Raw.bUndo, Raw.bJson};
		}
		else if (Run->parsed())
		{
			OutArguments.Run = FRunArguments{ToText(Raw.Project), Raw.GetEditor(), ToText(Raw.Script), ServiceFile::MakeInputs(ToText(Raw.Service)), Raw.bJson, Raw.bAllowToolkitContent};
		}
		else if (Install->parsed())
		{
			OutArguments.Install = FInstallArguments{ToText(Raw.Plugin), Raw.bDryRun, Raw.bWithTests, Raw.bForce};
		}
		else if (Automation->parsed())
		{
			OutArguments.Automation = FAutomationArguments{ToText(Raw.Project), ToText(Raw.Filter), ToText(Raw.Report), ToText(Raw.Compare), Raw.bList, Raw.bRepair};
		}
		else
		{
			OutArguments.Contract = FContractArguments{ToTexts(Raw.Plugins)};
		}
		return TOptional<EExitStatus>();
	}
}
