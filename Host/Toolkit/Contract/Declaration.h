// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

#include <map>
#include <optional>
#include <set>
#include <string>

/** A reflected declaration in parts that can be compared, whatever it declares. */
struct FDeclaration
{
	HeaderTool::FPlace Place;
	std::string Text; // as a person would write it

	/** "type", "result", "parameters" (types only), "static", "const", "virtual", "access", "value", "kind", "base class"; what it has of them. */
	std::map<std::string, std::string> Parts;

	/** Those that are in force, by the names that the engine gives them; of several that say the same, the narrowest. "Config=Game", too. */
	std::set<std::string> Specifiers;
};

namespace Declaration
{
	/** Unset for what is not reflected, or could not be read. Member is empty for the type itself. */
	std::optional<FDeclaration> Find(const HeaderTool::FHeader& Header, const std::string& Type, const std::string& Member);
}
