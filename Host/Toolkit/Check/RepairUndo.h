// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/CheckReport.h"
#include "Misc/Optional.h"

namespace RepairUndo
{
	/**
	 * Takes back exactly what the last repair of the project added, if all of it still stands there; else nothing is changed. No editor is
	 * started. @return unset when no repair is recorded.
	 */
	TOptional<FCheckReport> Run(const FString& Project);
}
