// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "TokenCursor.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	/** A name followed by parentheses: a function's declaration, or the call of a macro. */
	struct FCallLike
	{
		std::string Name;
		std::string Before; // the token before the name
		std::string Parameters; // as written
	};

	/** What can be told about a declaration that is not reflected. */
	struct FSkippedDeclaration
	{
		std::vector<FCallLike> Calls;
		std::string NestedMacro; // a reflection macro inside of its braces, "" if none
		FPlace NestedMacroPlace;
	};

	/**
	 * Steps over one declaration that is not reflected, whatever it is: function with body, nested type, friend, using, template, macro.
	 * Stops early before a reflection macro, an access specifier or a closing brace, which a macro without semicolon may stand before.
	 */
	FSkippedDeclaration SkipDeclaration(FTokenCursor& Cursor);

	/** Whether `public:` or its like stands here. */
	bool IsAccessSpecifier(const FTokenCursor& Cursor);
}
