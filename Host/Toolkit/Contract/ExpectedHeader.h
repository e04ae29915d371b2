// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Contract/CompanionTables.h"
#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;
}

namespace ExpectedHeader
{
	/**
	 * The declarations of the tables, read by the parser that reads the companions' headers, so that the two can be compared part by part. In
	 * it everything is reflected but constructors and delegates that are not dynamic, which are left out.
	 */
	void Parse(const std::vector<FExpectedName>& Names, HeaderTool::FHeader& OutHeader, HeaderTool::FDiagnostics& Diagnostics);
}
