// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostAutomation.h"
#include "Misc/Optional.h"

/** What one test did, here or in an engine. */
struct FReportedTest
{
	FString Path;
	FString State; // as the engine writes it: "Success", "Fail", "NotRun", "InProcess", "Skipped"
	FString SourceFile; // empty when the report does not say
	int32 SourceFileLine = 0;
	double Seconds = 0.0;
	FDateTime Started;
	TArray<FAutomationExecutionEntry> Entries;

	bool Passed() const { return State == TEXT("Success"); }
	bool IsUnfinished() const { return State == TEXT("NotRun") || State == TEXT("InProcess"); }
	int32 Count(EAutomationEventType Type) const;
};

/** A run of the suite. */
struct FAutomationReport
{
	FString Origin; // the machine and when, for people
	TArray<FReportedTest> Tests;
	bool bTrouble = false; // files could not be read or written, which has been told

	const FReportedTest* Find(const FString& Path) const;
	int32 CountPassed() const;
	int32 CountWithWarnings() const; // of those that passed
	int32 CountFailed() const;
	int32 CountUnfinished() const;
	double GetSeconds() const;
};

namespace AutomationReport
{
	FReportedTest Make(const HostAutomation::FResult& Result);

	/** Writes Folder/index.json as the engine's exporter does. False when that failed, which has been reported. */
	bool Write(const FAutomationReport& Report, const FString& Folder);

	/**
	 * Reads what this program or an engine exported.
	 * @param FileOrFolder index.json, or the folder that holds it
	 * @return unset when it cannot be read or is something else, which has been reported
	 */
	TOptional<FAutomationReport> Read(const FString& FileOrFolder);
}
