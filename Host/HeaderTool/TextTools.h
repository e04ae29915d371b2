// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	std::string Join(const std::vector<std::string>& Parts, const std::string& Separator);
	std::string Trim(const std::string& Text);
	bool StartsWith(const std::string& Text, const std::string& Prefix);
	bool EndsWith(const std::string& Text, const std::string& Suffix);

	/** ASCII letters only; names of specifiers and metadata keys are no other. */
	bool EqualsIgnoringCase(const std::string& A, const std::string& B);
	std::string ToLower(const std::string& Text);

	/** Every character that cannot be part of an identifier becomes '_'. */
	std::string ToIdentifier(const std::string& Text);

	/** Text as the inside of a C++ string literal. */
	std::string EscapeForLiteral(const std::string& Text);

	/** The candidate that Text is most likely a slip of the pen for; empty if none is near. */
	std::string FindNearest(const std::string& Text, const std::vector<std::string>& Candidates);

	/** The tool tip that a comment makes: markers, leading asterisks and ruler lines removed, line breaks kept. */
	std::string ToolTipFromComment(const std::string& Comment);
}
