// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

#include <cstdlib>
#include <gmock/gmock.h>

using testing::HasSubstr;

/** The program installed, and then moved to a folder that nobody told it of. */
class Installation : public FProjectOnDisk
{
protected:
	Installation()
	{
		const std::filesystem::path First = Folder.GetNative("Installed");
		const std::string Command = "\"" VELMORANT_CMAKE "\" --install \"" VELMORANT_BINARY_DIR "/..\" --prefix '" + First.string() + "' >/dev/null";
		EXPECT_EQ(std::system(Command.c_str()), 0) << Command;
		std::filesystem::create_directories(Moved.parent_path());
		std::filesystem::rename(First, Moved);
		FProgramRun::Program = (Moved / "bin/velmorant").string();
		std::filesystem::copy(Data / "Samples/HarborTower", Folder.GetNative("Project"), std::filesystem::copy_options::recursive);
	}

	~Installation() override { FProgramRun::Program = Built; }

	FProgramResult Check(const std::vector<std::string>& Options = {}) const
	{
		std::vector<std::string> Arguments = {"check", GetProject()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments, GetEnvironment());
	}

	FProgramResult RunScript(const char* Name) const
	{
		return FProgramRun::Run({"run", GetProject(), (Data / "Samples" / Name).string()}, GetEnvironment());
	}

	const std::string Built = FProgramRun::Program;
	const std::filesystem::path Moved = Folder.GetNative("Some where/else");
	const std::filesystem::path Data = Moved / "share/velmorant";
};

TEST_F(Installation, ChecksRepairsAndWalksTheSampleFromWhereItWasMovedTo)
{
	EXPECT_EQ(Check().ExitStatus, 1);
	for (const char* Script : {"Demo.velscript", "Tour.velscript"})
	{
		const FProgramResult Result = RunScript(Script);
		EXPECT_EQ(Result.ExitStatus, 0) << Script << Result.Output << Result.Errors;
		EXPECT_EQ(Result.Errors, "");
	}
	EXPECT_EQ(Check().ExitStatus, 0);
}

TEST_F(Installation, IsFoundThroughALink)
{
	std::filesystem::create_symlink(FProgramRun::Program, Folder.GetNative("velmorant"));
	FProgramRun::Program = Folder.GetNative("velmorant").string();
	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
}

TEST_F(Installation, SaysWhatIsMissingInPlaceOfAVerdict)
{
	for (const char* Lost : {"Plugins", "Engine/Config/BaseEngine.ini"})
	{
		std::filesystem::rename(Data / Lost, Moved / "Lost");
		const FProgramResult Result = Check({"--json"});
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_THAT(Result.Errors, HasSubstr((Data / Lost).string() + " is missing"));
		EXPECT_THAT(Result.Output, HasSubstr("\"status\":3"));
		std::filesystem::rename(Moved / "Lost", Data / Lost);
	}
	EXPECT_EQ(Check().ExitStatus, 1);
}
