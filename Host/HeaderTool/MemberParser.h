// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"
#include "TokenCursor.h"

namespace HeaderTool
{
	class FDiagnostics;

	// Each starts at its macro and ends behind its declaration; throws FSyntaxError when that cannot be read.

	FProperty ParseProperty(FTokenCursor& Cursor, const std::string& Path, EAccess Access, FDiagnostics& Diagnostics);
	FFunction ParseFunction(FTokenCursor& Cursor, const std::string& Path, EAccess Access, FDiagnostics& Diagnostics);

	/** `DECLARE_DYNAMIC_…DELEGATE…(FName, …);` */
	FDelegateType ParseDelegate(FTokenCursor& Cursor);

	/** Whether a dynamic delegate is declared here. */
	bool IsDelegateMacro(const FToken& Token);
}
