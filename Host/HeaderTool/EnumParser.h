// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"
#include "Specifiers.h"
#include "TokenCursor.h"

namespace HeaderTool
{
	/** Reads the enum behind UENUM(…), in any of its three forms; throws FSyntaxError when there is none. */
	FEnum ParseEnum(FTokenCursor& Cursor, const FSpecifierList& List, FDiagnostics& Diagnostics);
}
