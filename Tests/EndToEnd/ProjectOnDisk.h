// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Canary.h"
#include "FileBytes.h"
#include "ProgramRun.h"
#include "TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>

/** Every file below a folder, with its bytes and the time it was changed last. */
using FFolderState = std::map<std::string, std::pair<std::string, std::filesystem::file_time_type>>;

inline FFolderState LookAtFolder(const std::filesystem::path& Folder)
{
	FFolderState State;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
	{
		State[Entry.path().string()] = {Entry.is_regular_file() ? ReadBytes(Entry.path()) : std::string(), Entry.last_write_time()};
	}
	return State;
}

/** A project in a folder of its own, and the program run on it. User settings stay beside it. */
class FProjectOnDisk : public testing::Test
{
protected:
	static inline const std::filesystem::path Sample = VELMORANT_SOURCE_DIR "/Samples/HarborTower";
	static inline const std::string IniFile = "Project/Config/DefaultEngine.ini";

	/** Secrets are nowhere but where they belong. */
	void TearDown() override { EXPECT_EQ(Canary::FindLeaksIn(Folder.GetNative()), std::vector<std::string>{}); }

	/** A descriptor, nothing else. */
	void MakeBareProject() const { Folder.Write("Project/Test.uproject", "{ \"FileVersion\": 3, \"EngineAssociation\": \"5.6\" }\n"); }

	/** An empty project: a descriptor, and the API key that somebody has chosen. */
	void MakeProject() const
	{
		MakeBareProject();
		Folder.Write("Project/Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=" + Canary::Key + "\n");
	}

	void CopySample() const
	{
		std::filesystem::copy(Sample, Folder.GetNative("Project"), std::filesystem::copy_options::recursive);
	}

	void WriteIni(const std::string& Bytes) const { Folder.Write(IniFile, Bytes); }
	std::string ReadIni() const { return Folder.Read(IniFile); }

	std::string GetProject() const { return Folder.GetNative("Project").string(); }

	FProgramRun::FEnvironment GetEnvironment() const
	{
		return {{"XDG_CONFIG_HOME", Folder.GetNative("UserConfig").string()}, {"XDG_STATE_HOME", Folder.GetNative("UserState").string()}};
	}

	FProgramResult Check(const std::vector<std::string>& Options = {}) const
	{
		std::vector<std::string> Arguments = {"check", GetProject()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments, GetEnvironment());
	}

	/** Writes the lines to "test.velscript" beside the project and runs that. */
	FProgramResult RunScript(const std::string& Lines, const std::vector<std::string>& Options = {}) const
	{
		Folder.Write("test.velscript", Lines);
		std::vector<std::string> Arguments = {"run", GetProject(), GetScript()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments, GetEnvironment());
	}

	/** What no program says, however wrong its input is. */
	static void ExpectOwnWords(const FProgramResult& Result)
	{
		for (const char* Foreign : {"Assertion", "json.exception", "syntax error", "Fatal", "could not go on"})
		{
			EXPECT_EQ((Result.Output + Result.Errors).find(Foreign), std::string::npos) << Result.Output.substr(0, 4000) << Result.Errors.substr(0, 4000);
		}
	}

	/** Runs the script and expects that all of it is done. */
	FProgramResult Do(const std::string& Lines, const std::vector<std::string>& Options = {}) const
	{
		const FProgramResult Result = RunScript(Lines, Options);
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		return Result;
	}

	std::string GetScript() const { return Folder.GetNative("test.velscript").string(); }

	FTemporaryFolder Folder;
};

inline size_t CountOf(const std::string& Text, const std::string& Part)
{
	size_t Count = 0;
	for (size_t Found = Text.find(Part); Found != std::string::npos; Found = Text.find(Part, Found + Part.size()))
	{
		++Count;
	}
	return Count;
}
