// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Automation/AutomationReport.h"

/** The suite's runs as people read them. */
namespace AutomationText
{
	/** Whether the test belongs to the toolkit, not to the engine or another plugin. */
	bool IsOfSuite(const FString& Path);

	/** A line with the verdict and the time; beliefs are left to reports, warnings and errors follow. */
	void PrintTest(const FReportedTest& Test);

	/** Errors and warnings, one line each with file and line where they are known. */
	void PrintFaults(const FReportedTest& Test, const TCHAR* Indent);

	void PrintTotals(const FAutomationReport& Report);
}
