// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostConfig.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "HostState.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

inline std::string ToUtf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

inline std::vector<std::string> ToUtf8(const TArray<FString>& Texts)
{
	std::vector<std::string> Result;
	for (const FString& Text : Texts)
	{
		Result.push_back(ToUtf8(Text));
	}
	return Result;
}

/** As much of an editor as files need: a project in a folder of its own, the host's base configuration and nothing else. */
class FEditorFilesTest : public ::testing::Test
{
protected:
	FEditorFilesTest() { Boot(); }
	~FEditorFilesTest() override { HostState::DestroyAll(); }

	void Boot()
	{
		HostPaths::SetProjectDir(Folder.Get());
		HostPaths::SetUserSettingsDir(Folder.Get("settings"));
		HostConfig::Boot();
	}

	/** Another editor on the same files. */
	void Restart()
	{
		HostState::DestroyAll();
		Boot();
	}

	/** Messages and remedies of all problems, one a line. */
	static std::string GetProblems()
	{
		std::string Result;
		for (const FHostProblem& Problem : HostProblems::GetAll())
		{
			Result += ToUtf8(Problem.Message) + ". " + ToUtf8(Problem.Remedy) + "\n";
		}
		return Result;
	}

	/** Makes a file old, so that any rewriting shows in its time stamp. */
	std::filesystem::file_time_type Age(std::string_view File) const
	{
		const auto Old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
		std::filesystem::last_write_time(Folder.GetNative(File), Old);
		return std::filesystem::last_write_time(Folder.GetNative(File));
	}

	/** Runs a function in another process. @return its exit status as waitpid() has it */
	template<typename FunctionType>
	static pid_t Fork(FunctionType Function)
	{
		const pid_t Child = fork();
		if (Child == 0)
		{
			Function();
			_exit(0);
		}
		return Child;
	}

	static int Wait(pid_t Child)
	{
		int Status = -1;
		waitpid(Child, &Status, 0);
		return Status;
	}

	FTemporaryFolder Folder;
};
