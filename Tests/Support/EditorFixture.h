// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorHost.h"
#include "HostLog.h"
#include "HostNotifications.h"
#include "Misc/Paths.h"
#include "Templates/UniquePtr.h"
#include "TemporaryFolder.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

/**
 * A project in a folder of its own and an editor on it.
 *
 * The editor starts with StartEditor(), so that a test can write the project's files first; it can be started again and again. User
 * settings go beside the project. Everything is gone at the end of the test.
 */
class FEditorTest : public testing::Test
{
protected:
	FEditorTest()
	{
		Folder.Write("Project/Test.uproject", "{ \"FileVersion\": 3, \"EngineAssociation\": \"5.6\" }\n");
	}

	/** Shuts a running editor down first. */
	void StartEditor()
	{
		StopEditor();
		FEditorHostOptions Options;
		Options.Project = Folder.Get("Project/Test.uproject");
		Options.UserSettingsDir = Folder.Get("UserConfig");
		Options.CommandLine = CommandLine;
		Options.bAllowNotifications = bAllowNotifications;
		Options.PluginDirs = PluginDirs;
		Editor = MakeUnique<FEditorHost>(Options);
	}

	void StopEditor() { Editor.Reset(); }

	/** Lets the editor's time pass. */
	void Wait(double Seconds) { Editor->Tick(Seconds); }

	/** A file below the project's folder. */
	void WriteProjectFile(std::string_view Relative, std::string_view Bytes) const { Folder.Write("Project/" + std::string(Relative), Bytes); }
	std::string ReadProjectFile(std::string_view Relative) const { return Folder.Read("Project/" + std::string(Relative)); }

	/** Log lines of a category, each as "Verbosity: text", oldest first. */
	static TArray<FString> LogOf(const TCHAR* Category)
	{
		TArray<FString> Lines;
		for (const FHostLogLine& Line : HostLog::GetLines())
		{
			if (Line.Category == FName(Category))
			{
				Lines.Add(FString::Printf(TEXT("%s: %s"), ToString(Line.Verbosity), *Line.Text));
			}
		}
		return Lines;
	}

	/** Titles of all notifications so far, oldest first. */
	static TArray<FString> NotificationTitles()
	{
		TArray<FString> Titles;
		for (const HostNotifications::FRecord& Notification : HostNotifications::GetHistory())
		{
			Titles.Add(Notification->Text.ToString());
		}
		return Titles;
	}

	/** The newest notification of that title; the test fails when there is none. */
	static TSharedPtr<const FHostNotification> FindNotification(const TCHAR* Title)
	{
		const TArray<HostNotifications::FRecord> History = HostNotifications::GetHistory();
		for (int32 Index = History.Num() - 1; Index >= 0; --Index)
		{
			if (History[Index]->Text.ToString().Equals(Title, ESearchCase::CaseSensitive))
			{
				return History[Index];
			}
		}
		ADD_FAILURE() << "no notification has this title";
		return nullptr;
	}

	FTemporaryFolder Folder;
	FString CommandLine;
	bool bAllowNotifications = true;
	TArray<FString> PluginDirs; // empty: the toolkit's own
	TUniquePtr<FEditorHost> Editor;
};
