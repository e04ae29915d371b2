// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class UTestAsset;

/** Text as test messages print it. */
std::string Utf8(const FString& Text);
std::string Utf8(const FText& Text);
std::string Utf8(const FName& Name);

/**
 * A project folder of its own below the temporary folder, mounted as "/Game/", and a running editor without a window.
 * Everything is gone again after the test.
 */
class FAssetTestEditor : public ::testing::Test
{
protected:
	FAssetTestEditor();
	virtual ~FAssetTestEditor() override;

	/** Takes the editor down and brings another one up on the same project. */
	void Restart();

	/** Paths below the content folder. */
	void WriteContent(const std::string& RelativePath, const std::string& Bytes) const { Project.Write("Content/" + RelativePath, Bytes); }
	std::string ReadContent(const std::string& RelativePath) const { return Project.Read("Content/" + RelativePath); }
	bool HasContent(const std::string& RelativePath) const { return Project.Exists("Content/" + RelativePath); }

	/** A new asset that the registry knows, with public flags. */
	UTestAsset* MakeAsset(const TCHAR* PackageName) const;

	/** The asset of a package as a test asset; null when there is none. */
	UTestAsset* LoadTestAsset(const TCHAR* PackageName) const;

	/** All problems reported since the editor came up, one a line. */
	std::string Problems() const;

	/** How often a question of this kind was asked. */
	int32 CountAsked(const char* Kind) const;

	FTemporaryFolder Project;

private:
	void BringUp() const;
	void TakeDown() const;
};

/** A test asset's file with these members as its properties, "\"Count\": 3" for one. */
std::string MakeTestAssetFile(const std::string& Name, const std::string& Properties);
