// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"
#include "TokenCursor.h"

namespace HeaderTool
{
	/** Reads a type where a declaration begins; throws FSyntaxError when there is none. */
	FTypeUse ParseType(FTokenCursor& Cursor, int Depth = 0);

	constexpr int MaxTypeDepth = 64; // of template arguments in each other; each is parsed and checked within the one around

	/**
	 * Reads `(Type Name = Default, …)`. Default arguments are kept as text; parameter names may be missing (then "").
	 * The cursor stands at the opening parenthesis, and behind the closing one afterwards.
	 */
	std::vector<FProperty> ParseParameters(FTokenCursor& Cursor, const std::string& Path, class FDiagnostics& Diagnostics);

	/** `MODULE_API`, and attributes such as `UE_DEPRECATED(…)` or `[[nodiscard]]`; whether an API macro was among them. */
	bool SkipDecorations(FTokenCursor& Cursor);
}
