// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <compare>
#include <set>
#include <string>

namespace SurfaceCheck
{
	/** What objects and sources both say of a function. Overloads with equally many parameters are one. */
	struct FFunctionName
	{
		static constexpr int AnyNumber = -1; // of parameters: a pack, or not known

		std::string Scope; // namespaces and classes, joined by "::", without template arguments
		std::string Name; // conversions are all called ConversionName
		int Parameters = AnyNumber;

		static constexpr const char* ConversionName = "operator conversion";
		static constexpr const char* AnonymousNamespace = "anonymous";

		std::string GetQualified() const { return Scope.empty() ? Name : Scope + "::" + Name; }
		bool IsDestructor() const { return Name.starts_with('~'); }
		auto operator<=>(const FFunctionName&) const = default;
	};

	/** Whether somebody calls Name, given the names that are called: generated code calls "X_Implementation" for whoever calls "X". */
	bool IsCalled(const std::set<std::string>& CalledNames, const std::string& Name);

	/** "" when it is no mangled name. */
	std::string Demangle(const std::string& Mangled);

	/** Of a function's demangled name with its parameters; an empty name when Text is none. */
	FFunctionName ParseDemangled(std::string Text);
}
