// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Place.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	class FDiagnostics;

	enum class ETokenKind
	{
		Identifier,
		Number,
		String,
		Character,
		Symbol, // one character, or "::" or "->"; never ">>", so that template arguments close one by one
		Directive, // a whole preprocessor line, continuations joined, without the '#'
		End
	};

	struct FToken
	{
		ETokenKind Kind = ETokenKind::End;
		std::string Text; // as written; strings with prefix and quotes
		FPlace Place;
		std::string Comment; // the comment block that stands directly before, markers included; empty if none

		bool Is(const char* Expected) const { return Text == Expected && Kind != ETokenKind::String; }
		bool IsIdentifier() const { return Kind == ETokenKind::Identifier; }
	};

	/** Cuts Source into tokens; the last one is End. False when a comment or literal never ends (reported). */
	bool Tokenize(const std::string& Path, const std::string& Source, std::vector<FToken>& OutTokens, FDiagnostics& Diagnostics);
}
