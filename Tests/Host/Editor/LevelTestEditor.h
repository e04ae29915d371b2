// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/World.h"
#include "TemporaryFolder.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/** A project folder of its own and a running editor with an untitled map. Everything is gone again after the test. */
class FLevelTestEditor : public ::testing::Test
{
protected:
	FLevelTestEditor();
	virtual ~FLevelTestEditor() override;

	/** Takes the editor down and brings another one up on the same project. */
	void Restart();

	/** Writes the project's DefaultEngine.ini and restarts, so that it counts. */
	void RestartWithConfig(const std::string& Text);
	std::string ReadConfig() const { return Project.Read(ConfigFile); }

	UWorld& GetWorld() const;

	/** Labels of all actors that an iteration with default flags visits, in its order. */
	std::vector<std::string> GetLabels() const;

	/** Texts of the log lines of one category since the editor came up. */
	static std::vector<std::string> GetLog(const char* Category);

	static std::string Utf8(const FString& Text);

	FTemporaryFolder Project;

private:
	static constexpr const char* ConfigFile = "Config/DefaultEngine.ini";

	void Boot() const;
	static void TearDownEditor();
};
