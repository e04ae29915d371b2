// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationReport.h"
#include "HostJsonFault.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "JsonText.h"
#include "Misc/Paths.h"

namespace AutomationReportReader
{
	const TCHAR* const ExportAgain = TEXT("Name the index.json that the engine wrote below -ReportExportPath; Docs/UsingInUnreal.md has the line that writes it");

	/** Text members may be missing, but are no other values. */
	bool ReadText(const FJson& Object, const char* Name, FString& OutText)
	{
		const auto Member = Object.find(Name);
		if (Member == Object.end())
		{
			return true;
		}
		if (!Member->is_string())
		{
			return false;
		}
		OutText = UTF8_TO_TCHAR(Member->get_ref<const std::string&>().c_str());
		return true;
	}

	template<typename NumberType>
	NumberType ReadNumber(const FJson& Object, const char* Name, NumberType Otherwise)
	{
		const auto Member = Object.find(Name);
		return Member != Object.end() && Member->is_number() ? Member->get<NumberType>() : Otherwise;
	}

	bool ReadEntry(const FJson& Json, FReportedTest& OutTest)
	{
		if (!Json.is_object() || !Json.contains("event") || !Json["event"].is_object())
		{
			return false;
		}
		const FJson& Event = Json["event"];
		FString Type;
		FAutomationExecutionEntry Entry{FAutomationEvent(EAutomationEventType::Info, FString())};
		if (!ReadText(Event, "type", Type) || !ReadText(Event, "message", Entry.Event.Message) || !ReadText(Json, "filename", Entry.Filename))
		{
			return false;
		}
		Entry.Event.Type = Type == TEXT("Error") ? EAutomationEventType::Error : EAutomationEventType::Info;
		if (Type == TEXT("Warning"))
		{
			Entry.Event.Type = EAutomationEventType::Warning;
		}
		Entry.LineNumber = ReadNumber(Json, "lineNumber", -1);
		OutTest.Entries.Add(Entry);
		return true;
	}

	bool ReadTest(const FJson& Json, FReportedTest& OutTest)
	{
		if (!Json.is_object() || !ReadText(Json, "fullTestPath", OutTest.Path) || !ReadText(Json, "state", OutTest.State) || OutTest.Path.IsEmpty() || OutTest.State.IsEmpty())
		{
			return false;
		}
		OutTest.Seconds = ReadNumber(Json, "duration", 0.0);
		const auto Entries = Json.find("entries");
		if (Entries != Json.end())
		{
			for (const FJson& Entry : *Entries)
			{
				if (!ReadEntry(Entry, OutTest))
				{
					return false;
				}
			}
		}
		return true;
	}

	FString DescribeOrigin(const FJson& Root)
	{
		FString Platform = TEXT("an editor");
		FString Created = TEXT("an unknown time");
		const auto Devices = Root.find("devices");
		if (Devices != Root.end() && Devices->is_array() && !Devices->empty() && Devices->front().is_object())
		{
			ReadText(Devices->front(), "platform", Platform);
		}
		ReadText(Root, "reportCreatedOn", Created);
		return Platform + TEXT(", ") + Created;
	}

	/** Unset for JSON of something else. */
	TOptional<FAutomationReport> ReadRoot(const FJson& Root)
	{
		if (!Root.is_object() || !Root.contains("tests") || !Root["tests"].is_array())
		{
			return TOptional<FAutomationReport>();
		}
		FAutomationReport Report;
		Report.Origin = DescribeOrigin(Root);
		for (const FJson& Json : Root["tests"])
		{
			if (!ReadTest(Json, Report.Tests.AddDefaulted_GetRef()))
			{
				return TOptional<FAutomationReport>();
			}
		}
		return Report;
	}
}

TOptional<FAutomationReport> AutomationReport::Read(const FString& FileOrFolder)
{
	const FString File = HostFiles::DirectoryExists(FileOrFolder) ? FPaths::Combine(FileOrFolder, TEXT("index.json")) : FileOrFolder;
	std::string Text;
	const HostFiles::ERead Read = HostTextFiles::ReadUtf8(File, Text);
	if (Read == HostFiles::ERead::Missing)
	{
		HostProblems::Report(File, 0, TEXT("There is no such report"), AutomationReportReader::ExportAgain);
	}
	if (Read != HostFiles::ERead::Done)
	{
		return TOptional<FAutomationReport>();
	}
	const FJson Root = JsonText::Parse(Text);
	if (Root.is_discarded())
	{
		const FHostJsonFault Fault = HostJsonFault::Find(Text);
		HostProblems::Report(File, Fault.Line, TEXT("The report is cut off or damaged: ") + Fault.Message, TEXT("Run the tests again with an empty folder for -ReportExportPath, and let the engine end by itself"));
		return TOptional<FAutomationReport>();
	}
	TOptional<FAutomationReport> Report = AutomationReportReader::ReadRoot(Root);
	if (!Report.IsSet())
	{
		HostProblems::Report(File, 0, TEXT("This is not a report of automation tests"), AutomationReportReader::ExportAgain);
	}
	return Report;
}
