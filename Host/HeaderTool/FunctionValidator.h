// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;
	class FTypeTable;

	/** Checks the UFUNCTIONs of one class or interface; resolves their types and sets the flags that follow from these. */
	void ValidateFunctions(FClass& Class, const FTypeTable& Types, FDiagnostics& Diagnostics);
}
