// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

#include <array>
#include <cstdio>
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

namespace InstallationTest
{
	/** What a shell prints; nothing where that shell is not installed. */
	std::string AskShell(const std::string& Shell, const std::string& Script, bool& bOutThere)
	{
		bOutThere = std::filesystem::exists("/usr/bin/" + Shell);
		std::string Output;
		if (!bOutThere)
		{
			return Output;
		}
		FILE* const Pipe = popen(("HOME=/nonexistent '" + Shell + "' -c '" + Script + "' 2>&1").c_str(), "r");
		std::array<char, 4096> Buffer;
		for (size_t Count = 0; (Count = fread(Buffer.data(), 1, Buffer.size(), Pipe)) > 0;)
		{
			Output.append(Buffer.data(), Count);
		}
		EXPECT_EQ(pclose(Pipe), 0) << Output;
		return Output;
	}
}

TEST_F(Installation, ShellsCompleteItsArguments)
{
	const std::string Share = (Moved / "share").string();
	const std::string Bash = ". \"" + Share + "/bash-completion/completions/velmorant\"; complete() { COMP_WORDS=(velmorant \"$@\"); COMP_CWORD=$#; _velmorant; echo \"${COMPREPLY[*]}\"; }; ";
	const std::string Fish = "source \"" + Share + "/fish/vendor_completions.d/velmorant.fish\"; complete -C ";
	const struct
	{
		const char* Shell;
		std::string Script;
		const char* Part;
	} Cases[] = {
		{"bash", Bash + "complete ch", "check"},
		{"bash", Bash + "complete check --re", "--repair"},
		{"bash", Bash + "complete run --platform W", "Windows"},
		{"bash", Bash + "complete completion f", "fish"},
		{"fish", Fish + "\"velmorant inst\"", "install"},
		{"fish", Fish + "\"velmorant check --re\"", "--repair"},
		{"fish", Fish + "\"velmorant run --platform \"", "Windows"},
		{"zsh", "autoload -U compinit && compinit -u -D && source \"" + Share + "/zsh/vendor-completions/_velmorant\" && echo $_comps[velmorant]", "_velmorant"},
	};
	for (const auto& Case : Cases)
	{
		bool bThere = false;
		const std::string Output = InstallationTest::AskShell(Case.Shell, Case.Script, bThere);
		EXPECT_TRUE(!bThere || Output.find(Case.Part) != std::string::npos) << Case.Script << "\n"
																			<< Output;
	}
}

TEST_F(Installation, HasAManualPageOfAllCommands)
{
	const std::string Page = ReadBytes(Moved / "share/man/man1/velmorant.1");
	for (const char* Part : {".SS check\n", ".SS automation\n", "\\-\\-repair", "expect [no] widget PANEL WIDGET", "delete actors ACTOR", "import icons FOLDER", "NO_COLOR"})
	{
		EXPECT_NE(Page.find(Part), std::string::npos) << Part;
	}
	if (std::filesystem::exists("/usr/bin/groff"))
	{
		const std::string Command = "groff -man -Tutf8 -ww -z '" + (Moved / "share/man/man1/velmorant.1").string() + "' 2>&1 | grep . && exit 1 || exit 0";
		EXPECT_EQ(std::system(Command.c_str()), 0) << "the formatter warns";
	}
}

TEST_F(Installation, IsADebianPackageToo)
{
#ifdef __SANITIZE_ADDRESS__
	GTEST_SKIP() << "nobody ships the program with sanitizers, and it is large";
#endif
	if (!std::filesystem::exists("/usr/bin/dpkg-shlibdeps"))
	{
		GTEST_SKIP() << "dpkg-dev is not installed";
	}
	const std::filesystem::path Root = Folder.GetNative("Root");
	const std::string Work = Folder.GetNative("Package").string();
	const std::string Cpack = (std::filesystem::path(VELMORANT_CMAKE).parent_path() / "cpack").string();
	const std::string Command = "cd '" VELMORANT_BINARY_DIR "/..' && '" + Cpack + "' -G DEB -B '" + Work + "' >/dev/null && dpkg-deb -x '" + Work + "'/*.deb '" + Root.string() + "'";
	ASSERT_EQ(std::system(Command.c_str()), 0) << Command;
	for (const char* File : {"usr/share/man/man1/velmorant.1", "usr/share/bash-completion/completions/velmorant", "usr/share/velmorant/Engine/Config/BaseEngine.ini"})
	{
		EXPECT_TRUE(std::filesystem::exists(Root / File)) << File;
	}
	FProgramRun::Program = (Root / "usr/bin/velmorant").string();
	EXPECT_EQ(RunScript("Demo.velscript").ExitStatus, 0);
	EXPECT_EQ(Check().ExitStatus, 0);
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
