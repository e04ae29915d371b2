// Copyright Velmorant. All Rights Reserved.

#include "Arguments.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>

namespace HeaderTool
{
	std::optional<int> ParseArguments(std::vector<std::string> Words, FArguments& OutArguments, std::ostream& Out, std::ostream& Err)
	{
		CLI::App App("Reads the headers of a module that carry reflection macros (UCLASS, USTRUCT, UENUM, UINTERFACE, UFUNCTION, UPROPERTY)\n"
					 "and writes <Name>.generated.h and <Name>.gen.cpp for each of them.",
			"VelmorantHeaderTool");
		App.add_option("--module", OutArguments.Module, "The module that is generated")->required()->type_name("NAME");
		App.add_option("--output", OutArguments.OutputFolder, "Where the generated files go; made if needed")->required()->type_name("DIR");
		App.add_option("--manifest", OutArguments.Manifest, "The module's headers: a line 'module NAME', then lines 'header INCLUDE_PATH FILE'")->required()->type_name("FILE");
		App.add_option("--reference", OutArguments.References, "The manifest of a module that this one depends on, once for each; its types are known, nothing is written for it")->allow_extra_args(false)->type_name("FILE");
		App.footer("Ends with 0 when all is written, 1 when a header or manifest is wrong or a file could not be\nread or written, 2 for bad usage.");
		App.failure_message([](const CLI::App* Failed, const CLI::Error& Error) {
			// What was not expected says more than what is missing instead of it.
			std::vector<std::string> Strangers = Failed->remaining();
			std::reverse(Strangers.begin(), Strangers.end());
			return Failed->get_name() + ": " + CLI::FailureMessage::simple(Failed, Strangers.empty() ? Error : CLI::ExtrasError(Strangers));
		});
		std::reverse(Words.begin(), Words.end()); // as the library takes them
		try
		{
			App.parse(std::move(Words));
		}
		catch (const CLI::ParseError& Error)
		{
			return App.exit(Error, Out, Err) == 0 ? 0 : 2;
		}
		return std::nullopt;
	}
}
