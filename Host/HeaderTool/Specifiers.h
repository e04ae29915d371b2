// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	class FDiagnostics;

	/** One entry of a macro's parentheses: `Name`, `Name=Value` or `Name=(A, B)`. */
	struct FSpecifier
	{
		std::string Name;
		std::vector<std::string> Values; // insides of string literals, or the text as written
		int Line = 0;

		std::string JoinedValue() const;
	};

	/** What stood in the parentheses of one macro; `meta=(…)` has gone into Meta. */
	struct FSpecifierList
	{
		std::string Macro; // "UPROPERTY"
		std::string Path; // for messages
		int Line = 0;
		std::string Comment; // before the macro; becomes the tool tip if there is no other
		std::vector<FSpecifier> Specifiers;
		FMetaData Meta;
	};

	// Each turns specifiers into flags, metadata and facts; a specifier that its macro does not know is reported.
	void ApplyClassSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics);
	void ApplyInterfaceSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics);
	void ApplyStructSpecifiers(const FSpecifierList& List, FClass& Struct, FDiagnostics& Diagnostics);
	void ApplyEnumSpecifiers(const FSpecifierList& List, FEnum& Enum, FDiagnostics& Diagnostics);
	void ApplyEnumeratorSpecifiers(const FSpecifierList& List, FEnumerator& Enumerator);
	void ApplyFunctionSpecifiers(const FSpecifierList& List, FFunction& Function, FDiagnostics& Diagnostics);
	void ApplyPropertySpecifiers(const FSpecifierList& List, FProperty& Property, FDiagnostics& Diagnostics);
	void ApplyParameterSpecifiers(const FSpecifierList& List, FProperty& Parameter, FDiagnostics& Diagnostics);
}
