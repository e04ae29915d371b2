// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	class FDiagnostics;

	/** One entry of a macro's parentheses or of its meta=(…): `Name`, `Name=Value` or `Name=(A, B)`. */
	struct FSpecifier
	{
		std::string Name;
		std::vector<std::string> Values; // insides of string literals, or the text as written
		FPlace Place;
		bool bKey = false; // in meta=(…)
	};

	/** What stood in the parentheses of one macro. */
	struct FSpecifierList
	{
		std::string Macro; // "UPROPERTY"
		std::string Path; // for messages
		FPlace Place;
		std::string Comment; // before the macro; becomes the tool tip if there is no other
		std::vector<FSpecifier> Specifiers;

		const FSpecifier* Find(const std::string& Name) const;
	};

	// Each turns specifiers into flags, metadata and facts, as the table says; what is refused or unknown there is reported.
	void ApplyClassSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics);
	void ApplyInterfaceSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics);
	void ApplyStructSpecifiers(const FSpecifierList& List, FClass& Struct, FDiagnostics& Diagnostics);
	void ApplyEnumSpecifiers(const FSpecifierList& List, FEnum& Enum, FDiagnostics& Diagnostics);
	void ApplyEnumeratorSpecifiers(const FSpecifierList& List, FEnumerator& Enumerator, FDiagnostics& Diagnostics);
	void ApplyFunctionSpecifiers(const FSpecifierList& List, FFunction& Function, FDiagnostics& Diagnostics);
	void ApplyPropertySpecifiers(const FSpecifierList& List, FProperty& Property, FDiagnostics& Diagnostics);
	void ApplyParameterSpecifiers(const FSpecifierList& List, FProperty& Parameter, FDiagnostics& Diagnostics);
}
