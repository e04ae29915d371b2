// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "FunctionName.h"

#include <set>
#include <string>
#include <vector>

namespace SurfaceCheck
{
	/** One declaration or definition of a function, as its source has it. */
	struct FSourceFunction
	{
		FFunctionName Name;
		std::string Path;
		int Line = 0;
		int LastLine = 0;
		bool bBody = false;
		bool bVirtual = false; // says virtual, override or final
		bool bOverride = false;
		bool bConstant = false; // constexpr or consteval: may run in the compiler alone
		bool bNothingToCall = false; // defaulted or deleted
		std::set<std::string> Calls; // names that the body calls and that a virtual function may have
		std::set<std::string> Words; // all that the body and the declaration mention
		std::set<std::string> Families; // classes below which the body looks for others, whichever there are
	};

	/** What the tokens of one source say. Macros are not expanded: functions that a macro declares are not seen. */
	struct FSource
	{
		std::string Path;
		std::vector<FSourceFunction> Functions;
		std::set<std::string> Classes;
		std::set<std::string> Includes; // as written, without quotes and brackets; also those within texts, which are for generated code
		std::set<std::string> Calls; // outside of functions: initial values of variables, texts of macros
		std::set<std::string> Words; // the same
		std::set<std::string> ScriptNames; // "Name" of the texts "/Script/Module.Name"
	};

	/** Throws std::runtime_error when it cannot be read or cut into tokens. Path is what the result calls it. */
	FSource ReadSource(const std::string& Path, const std::string& Text);
}
