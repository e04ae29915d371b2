// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Lexer.h"

#include <map>
#include <string>
#include <vector>

/** A class, struct, enum or delegate by the words of its declaration: what can be told of those that are not reflected. */
struct FDeclaredType
{
	std::string Name;
	int Line = 0;
	std::vector<std::string> Bases;
	std::map<std::string, int> Members; // names that are declared in its body, each with the line of the first

	/** The constructor with so many parameters has this name among the members. */
	static std::string ConstructorName(const std::string& Type, size_t NumParameters);
};

namespace DeclaredTypes
{
	/** In order, nested ones and delegates included; types that are only announced are not. Directives may stand among the tokens. */
	std::vector<FDeclaredType> Find(const std::vector<HeaderTool::FToken>& Tokens);
}
