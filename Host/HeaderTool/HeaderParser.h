// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;

	/**
	 * Reads one header. Header comes with path, include path and module; its types are filled in. Types that could not be read are left out,
	 * and reported with place and remedy. Knows nothing of other headers: what a name means is found out by the type checker.
	 */
	void ParseHeader(const std::string& Source, FHeader& Header, FDiagnostics& Diagnostics);
}
