// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	/** The macros that take specifiers; a row of the table may be for several of them. */
	enum EMacro : unsigned
	{
		InClass = 1,
		InInterface = 2,
		InStruct = 4,
		InEnum = 8,
		InEnumerator = 16,
		InFunction = 32,
		InProperty = 64,
		InParameter = 128,
	};

	/** Where a word stands: beside the others in the macro's parentheses, or in its meta=(…). In UMETA() that makes no difference. */
	enum class ERole
	{
		Specifier,
		Key,
		Both,
	};

	enum class EValue
	{
		None,
		Optional,
		Needed,
	};

	/** A word that the engine knows, and what becomes of it here. */
	struct FSpecifierRow
	{
		const char* Name;
		unsigned Macros = 0; // any of EMacro
		ERole Role = ERole::Specifier;
		EValue Value = EValue::None;
		std::vector<const char*> Flags = {};
		const char* Key = nullptr; // of the metadata that it sets, if any
		const char* KeyValue = nullptr; // null: the value that is written

		/**
		 * Who acts on a flag or the key: the name of a source of the host or of this tool. ByReflection for what is told to people and asked
		 * for by name only. Null for what nobody would act on: it is refused.
		 */
		const char* Consumer = nullptr;
	};

	inline constexpr char ByReflection[] = "by reflection";

	/** All rows; names compare without regard to case, and a name may have a row for each macro. */
	const std::vector<FSpecifierRow>& GetSpecifierTable();

	/** The row of a word at a macro, or null. bKey: it stands in meta=(…). */
	const FSpecifierRow* FindSpecifier(const std::string& Name, EMacro Macro, bool bKey);
}
