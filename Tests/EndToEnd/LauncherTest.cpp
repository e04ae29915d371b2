// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** The launcher alone, in a folder where nothing is that it could build. */
class Launcher : public FProjectOnDisk
{
protected:
	Launcher()
	{
		std::filesystem::copy(VELMORANT_SOURCE_DIR "/velmorant", Folder.GetNative("velmorant"));
		FProgramRun::Program = Folder.GetNative("velmorant").string();
	}

	~Launcher() override { FProgramRun::Program = Built; }

	/** A program in the place of a real one. */
	void Pretend(std::string_view Path, std::string_view Script) const
	{
		Folder.Write(Path, "#!/bin/sh\n" + std::string(Script));
		std::filesystem::permissions(Folder.GetNative(Path), std::filesystem::perms::owner_all);
	}

	const std::string Built = FProgramRun::Program;
};

TEST_F(Launcher, HelpOfACommandDoesNothingElse)
{
	for (const char* Command : {"demo", "test", "check", "run", "install", "contract", "editor", "automation", "fuzz", "bench", "package", "setup", "format"})
	{
		for (const std::vector<std::string>& Arguments : {std::vector<std::string>{Command, "--help"}, {Command, "-h"}, {Command, "--sanitize", "--help"}})
		{
			SCOPED_TRACE(Command);
			const FProgramResult Result = FProgramRun::Run(Arguments);
			EXPECT_EQ(Result.ExitStatus, 0) << Result.Errors;
			EXPECT_NE(Result.Output.find(std::string("\n  ") + Command + " "), std::string::npos) << Result.Output;
			EXPECT_EQ(Result.Errors, "");
		}
	}
	EXPECT_EQ(Folder.Count(), 1u) << "nothing is built, nothing copied";
}

TEST_F(Launcher, SaysWhichCommandWasMeant)
{
	const struct
	{
		const char* Typed;
		const char* Message;
	} Cases[] = {
		{"chek", "there is no command chek. Did you mean \"check\"? There are: automation, bench, check, "},
		{"fomrat", "Did you mean \"format\"?"},
		{"dance", "there is no command dance. There are: "},
	};
	for (const auto& Case : Cases)
	{
		const FProgramResult Result = FProgramRun::Run({Case.Typed, "--help"});
		EXPECT_EQ(Result.ExitStatus, 2);
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
	}
}

TEST_F(Launcher, RefusesWhatItCannotFuzz)
{
	std::filesystem::create_directories(Folder.GetNative("Tests/Fuzz/Inputs/ini"));
	std::filesystem::create_directories(Folder.GetNative("Tests/Fuzz/Inputs/text"));
	EXPECT_EQ(FProgramRun::Run({"fuzz", "--list"}).Output, "ini\ntext\n");
	const struct
	{
		std::vector<std::string> Arguments;
		const char* Message;
	} Cases[] = {
		{{"fuzz", "txt"}, "there is no target txt. There are: ini, text"},
		{{"fuzz", "ini/../text"}, "there is no target ini/../text."},
		{{"fuzz", ""}, "there is no target ."},
		{{"fuzz", "--seconds"}, "--seconds takes a number from 1 to 999999, not \"\""},
		{{"fuzz", "ini", "--seconds", "0"}, "not \"0\""},
		{{"fuzz", "--seconds", "1e3"}, "not \"1e3\""},
		{{"fuzz", "--secs", "3"}, "fuzz has no option --secs"},
	};
	for (const auto& Case : Cases)
	{
		const FProgramResult Result = FProgramRun::Run(Case.Arguments);
		EXPECT_EQ(Result.ExitStatus, 2);
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
	}
}

TEST_F(Launcher, GoesOnFuzzingAfterAFinding)
{
	std::filesystem::create_directories(Folder.GetNative("Tests/Fuzz/Inputs/ini"));
	std::filesystem::create_directories(Folder.GetNative("Tests/Fuzz/Inputs/text"));
	Folder.Write("build/fuzz/build.ninja", "");
	Pretend("bin/cmake", "exit 0\n");
	Pretend("bin/dpkg-query", "echo install ok installed\n");
	Pretend("build/fuzz/bin/VelmorantFuzz", R"(
if [ "$1" = text ]; then
	echo "#12	DONE   cov: 34 ft: 56 corp: 5/10b exec/s: 0"
	echo "stat::number_of_executed_units: 12"
	exit 0
fi
[ ! -e broken ] || exit 3
echo "A promise was broken: what was added is read"
echo "artifact_prefix='build/fuzz/ini/found/'; Test unit written to build/fuzz/ini/found/crash-1"
exit 77
)");
	const FProgramRun::FEnvironment Environment = {{"PATH", Folder.GetNative("bin").string() + ":" + std::getenv("PATH")}};

	const FProgramResult Found = FProgramRun::Run({"fuzz", "--seconds", "1"}, Environment);
	EXPECT_EQ(Found.ExitStatus, 1) << Found.Errors;
	for (const char* Part : {"1 finding\n    A promise was broken: what was added is read\n", "To see it again: build/fuzz/bin/VelmorantFuzz ini build/fuzz/ini/found/crash-1\n", "12 inputs,     34 edges reached,      5 inputs kept, nothing found\n"})
	{
		EXPECT_NE(Found.Output.find(Part), std::string::npos) << Found.Output;
	}
	EXPECT_EQ(FProgramRun::Run({"fuzz", "text"}, Environment).ExitStatus, 0);

	Folder.Write("broken", "");
	const FProgramResult Broken = FProgramRun::Run({"fuzz"}, Environment);
	EXPECT_EQ(Broken.ExitStatus, 3);
	EXPECT_NE(Broken.Errors.find("ini: fuzzing ended with status 3"), std::string::npos) << Broken.Errors;
}
