// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationReport.h"
#include "HostFiles.h"
#include "JsonText.h"
#include "Misc/Paths.h"

namespace AutomationReportWriter
{
	const char* const EventTypes[] = {"Info", "Warning", "Error"};
	const char* const DeviceInstance = "VelmorantEditorHost-0";

	FJson MakeEntry(const FAutomationExecutionEntry& Entry)
	{
		const FAutomationEvent& Event = Entry.Event;
		return {
			{"event", {{"type", EventTypes[static_cast<int32>(Event.Type)]}, {"message", JsonText::Make(Event.Message)}, {"context", JsonText::Make(Event.Context)}, {"artifact", JsonText::Make(Event.Artifact.ToString())}}},
			{"filename", JsonText::Make(Entry.Filename)},
			{"lineNumber", Entry.LineNumber},
			{"timestamp", JsonText::Make(Entry.Timestamp.ToString())},
		};
	}

	FJson MakeTest(const FReportedTest& Test)
	{
		FString Before;
		FString DisplayName = Test.Path;
		Test.Path.Split(TEXT("."), &Before, &DisplayName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		FJson Entries = FJson::array();
		for (const FAutomationExecutionEntry& Entry : Test.Entries)
		{
			Entries.push_back(MakeEntry(Entry));
		}
		return {
			{"testDisplayName", JsonText::Make(DisplayName)},
			{"fullTestPath", JsonText::Make(Test.Path)},
			{"state", JsonText::Make(Test.State)},
			{"deviceInstance", FJson::array({DeviceInstance})},
			{"duration", Test.Seconds},
			{"dateTime", JsonText::Make(Test.Started.ToString())},
			{"entries", Entries},
			{"warnings", Test.Count(EAutomationEventType::Warning)},
			{"errors", Test.Count(EAutomationEventType::Error)},
			{"artifacts", FJson::array()},
		};
	}

	FJson MakeDevice()
	{
		FJson Device = {{"deviceName", "Velmorant editor host"}, {"instance", DeviceInstance}, {"platform", "LinuxEditor"}};
		for (const char* const Unknown : {"oSVersion", "model", "gPU", "cPUModel"})
		{
			Device[Unknown] = "";
		}
		Device["rAMInGB"] = 0;
		for (const char* const Unknown : {"renderMode", "rHI", "appInstanceLog"})
		{
			Device[Unknown] = "";
		}
		return Device;
	}

	FJson MakeRoot(const FAutomationReport& Report)
	{
		FJson Tests = FJson::array();
		for (const FReportedTest& Test : Report.Tests)
		{
			Tests.push_back(MakeTest(Test));
		}
		return {
			{"devices", FJson::array({MakeDevice()})},
			{"reportCreatedOn", JsonText::Make(FDateTime::Now().ToString())},
			{"succeeded", Report.CountPassed() - Report.CountWithWarnings()}, // the engine counts each test once
			{"succeededWithWarnings", Report.CountWithWarnings()},
			{"failed", Report.CountFailed()},
			{"notRun", Report.CountUnfinished()},
			{"inProcess", 0},
			{"totalDuration", Report.GetSeconds()},
			{"comparisonExported", false},
			{"comparisonExportDirectory", ""},
			{"tests", Tests},
		};
	}
}

bool AutomationReport::Write(const FAutomationReport& Report, const FString& Folder)
{
	const char* const ByteOrderMark = "\xEF\xBB\xBF"; // as the engine has it
	return HostFiles::Write(FPaths::Combine(Folder, TEXT("index.json")), ByteOrderMark + JsonText::Print(AutomationReportWriter::MakeRoot(Report), 1) + "\n");
}
