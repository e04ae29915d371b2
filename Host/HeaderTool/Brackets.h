// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Lexer.h"

namespace HeaderTool
{
	/** The bracket that closes Bracket, or that it closes. */
	std::string PartnerOf(const std::string& Bracket);

	/** Whether every bracket has its partner. Reports the first that has none: what follows it cannot be understood. */
	bool CheckBrackets(const std::string& Path, const std::vector<FToken>& Tokens, FDiagnostics& Diagnostics);
}
