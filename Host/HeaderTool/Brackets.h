// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Lexer.h"

namespace HeaderTool
{
	/** Whether every bracket has its partner. Reports the first that has none: what follows it cannot be understood. */
	bool CheckBrackets(const std::string& Path, const std::vector<FToken>& Tokens, FDiagnostics& Diagnostics);
}
