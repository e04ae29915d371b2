// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Specifiers.h"
#include "TokenCursor.h"

namespace HeaderTool
{
	/** Reads `MACRO(…)`; the cursor stands at the macro's name. Throws FSyntaxError when the parentheses make no sense. */
	FSpecifierList ParseSpecifiers(FTokenCursor& Cursor, const std::string& Path);

	/** The inside of a string token, escapes as written; a raw string is turned into escapes. */
	std::string LiteralInside(const FToken& Token);
}
