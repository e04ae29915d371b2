// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Lexer.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	struct FIncludeLine
	{
		std::string Path;
		FPlace Place;
	};

	/** A header after the preprocessor directives have been dealt with. */
	struct FConditionedSource
	{
		std::vector<FToken> Tokens; // no directives, ends with End
		std::vector<FIncludeLine> Includes;
	};

	/** Whether Text is one of the macros that mark something as reflected. */
	bool IsReflectionMacro(const std::string& Text);

	/**
	 * Takes the directives out: code under WITH_EDITOR and WITH_EDITORONLY_DATA stays, so does the first branch of any other condition,
	 * as long as nothing reflected is in it (an error: the generated code could not follow the condition).
	 */
	FConditionedSource ResolveConditionals(const std::string& Path, std::vector<FToken> Tokens, FDiagnostics& Diagnostics);
}
