// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostAssertions.h"
#include "HostConfig.h"
#include "HostLog.h"
#include "HostObjects.h"
#include "HostPaths.h"
#include "HostState.h"
#include "TemporaryFolder.h"
#include "TestPrinters.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

inline std::string Utf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

/** An object system of its own, with the configuration of an empty project. */
class FObjectSystemTest : public ::testing::Test
{
protected:
	FObjectSystemTest() { Boot(); }
	~FObjectSystemTest() override { Down(); }

	void Boot()
	{
		HostPaths::SetProjectDir(Folder.Get());
		HostPaths::SetUserSettingsDir(Folder.Get("settings"));
		HostConfig::Boot();
		HostObjects::Boot();
	}

	static void Down()
	{
		HostObjects::TearDown();
		HostState::DestroyAll();
	}

	/** Another editor on the same files. */
	void Restart()
	{
		Down();
		Boot();
	}

	/** Number of log lines that contain Text. */
	static int32 CountLogLines(const TCHAR* Text)
	{
		int32 Count = 0;
		for (const FHostLogLine& Line : HostLog::GetLines())
		{
			Count += Line.Text.Contains(Text) ? 1 : 0;
		}
		return Count;
	}

	FTemporaryFolder Folder;
};
