// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"
#include "TokenCursor.h"

namespace HeaderTool
{
	class FDiagnostics;

	/** `class MODULE_API UFoo final : public UBase, public IBar`. */
	struct FClassHead
	{
		std::string Keyword; // "class" or "struct"
		std::string Name;
		bool bExported = false;
		FPlace Place;
		std::vector<FBaseSpecifier> Bases;
	};

	/** Reads up to the opening brace; throws FSyntaxError if there is no class definition. */
	FClassHead ParseClassHead(FTokenCursor& Cursor, const std::string& Where);

	/** Which side of a reflected type a body belongs to. */
	enum class EBodySide
	{
		Class,
		InterfaceUClass,
		NativeInterface,
		Struct
	};

	/**
	 * Reads `{ … };` of a reflected type: its reflected members into Class, the rest into facts. Reports what is wrong with a member and
	 * goes on with the next.
	 */
	void ParseClassBody(FTokenCursor& Cursor, const std::string& Path, EBodySide Side, FClass& Class, FDiagnostics& Diagnostics);
}
