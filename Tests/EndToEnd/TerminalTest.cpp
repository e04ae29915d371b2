// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** What people see on terminals and programs get through pipes. */
class TerminalUse : public FProjectOnDisk
{
protected:
	TerminalUse() { CopySample(); }

	static inline const std::string Colored = "\x1b[3";

	FProgramResult CheckOnTerminal(const std::vector<std::string>& Options, const FProgramRun::FEnvironment& More) const
	{
		std::vector<std::string> Arguments = {"check", GetProject()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		FProgramRun::FEnvironment Environment = GetEnvironment();
		Environment.insert(Environment.end(), More.begin(), More.end());
		return FProgramRun::RunOnTerminal(Arguments, Environment, "nobody is asked", "");
	}
};

TEST_F(TerminalUse, ColoursAreForTerminals)
{
	const struct
	{
		const char* Behaviour;
		std::vector<std::string> Options;
		FProgramRun::FEnvironment Environment;
		bool bColored;
	} Cases[] = {
		{"a terminal", {}, {{"TERM", "xterm"}, {"NO_COLOR", ""}}, true},
		{"nobody wants colours", {}, {{"TERM", "xterm"}, {"NO_COLOR", "1"}}, false},
		{"a terminal that knows none", {}, {{"TERM", "dumb"}}, false},
		{"not this time", {"--color", "never"}, {{"TERM", "xterm"}}, false},
		{"this time", {"--color", "always"}, {{"TERM", "dumb"}, {"NO_COLOR", "1"}}, true},
		{"JSON", {"--color", "always", "--json"}, {{"TERM", "xterm"}}, false},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = CheckOnTerminal(Case.Options, Case.Environment);
		EXPECT_EQ(Result.ExitStatus, 1) << Result.Output;
		EXPECT_EQ(Result.Output.find(Colored) != std::string::npos, Case.bColored) << Result.Output;
	}
}

TEST_F(TerminalUse, PipesGetTextAsItIsUnlessAsked)
{
	const FProgramRun::FEnvironment Environment = {{"TERM", "xterm"}};
	const FProgramResult Plain = FProgramRun::Run({"check", GetProject(), "--diff"}, Environment);
	const FProgramResult Colors = FProgramRun::Run({"check", GetProject(), "--diff", "--color", "always"}, Environment);
	EXPECT_EQ(Plain.Output.find('\x1b'), std::string::npos) << Plain.Output;
	EXPECT_NE(Colors.Output.find("\x1b[32m+"), std::string::npos) << Colors.Output;
	std::string Stripped = Colors.Output;
	for (const char* Code : {"\x1b[0m", "\x1b[1m", "\x1b[31m", "\x1b[32m", "\x1b[33m", "\x1b[36m"})
	{
		for (size_t Place = Stripped.find(Code); Place != std::string::npos; Place = Stripped.find(Code))
		{
			Stripped.erase(Place, std::string(Code).size());
		}
	}
	EXPECT_EQ(Stripped, Plain.Output) << "colours change no word";
}

TEST_F(TerminalUse, WhatTakesLongSaysSoAndTakesItAwayAgain)
{
	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0444));
	Folder.Write("Project/Config/DefaultEditor.ini", "[Velmorant.VersionControl]\nCheckOutCommand=sleep 1.6; chmod u+w\n");
	Folder.Write("test.velscript", "answer ReadOnlyFile \"Check Out\"\npress \"Add to Project Config\"\nheading Done\n");
	const std::vector<std::string> Arguments = {"run", GetProject(), GetScript()};
	FProgramRun::FEnvironment Environment = GetEnvironment();
	Environment.emplace_back("TERM", "xterm");
	const FProgramResult Shown = FProgramRun::RunOnTerminal(Arguments, Environment, "nobody is asked", "");
	EXPECT_EQ(Shown.ExitStatus, 0) << Shown.Output;
	const size_t Line = Shown.Output.find("\r\x1b[Kline 2: press … 1 s");
	ASSERT_NE(Line, std::string::npos) << Shown.Output;
	EXPECT_EQ(Shown.Output.find("line 1:"), std::string::npos) << "that was quick";
	const size_t Cleared = Shown.Output.find("\r\x1b[K", Shown.Output.find(" s", Line));
	EXPECT_LT(Cleared, Shown.Output.find("> press", Line)) << "the line goes before other text comes";

	std::filesystem::permissions(Folder.GetNative(IniFile), std::filesystem::perms(0444));
	const FProgramResult Piped = FProgramRun::Run(Arguments, Environment);
	EXPECT_EQ(Piped.Errors.find("line 2"), std::string::npos) << Piped.Errors;
}

/** Files that are not there, but come out of a pipe. */
class StandardInputUse : public FProjectOnDisk
{
protected:
	StandardInputUse() { CopySample(); }

	FProgramResult Run(const std::vector<std::string>& Arguments, const std::string& Input) const { return FProgramRun::RunWithInput(Arguments, GetEnvironment(), Input); }

	static inline const std::string SignIn =
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\ntype Login UserName lucia\ntype Login UserPassword p\nclick Login SummitButton\nwait 1\n"
		"expect widget Login LoginStatus value \"Signed in as lucia\"\n";
};

TEST_F(StandardInputUse, IsAScriptOrData)
{
	Folder.Write("test.velscript", SignIn);
	const struct
	{
		const char* Behaviour;
		std::vector<std::string> Arguments;
		std::string Input;
		int Status;
		const char* Errors;
	} Cases[] = {
		{"a script", {"run", GetProject(), "-"}, "wait 0\nexpect no unsaved\n", 0, ""},
		{"a script that is wrong", {"run", GetProject(), "-"}, "wait 0\ndance\n", 3, "<stdin>(2): error: "},
		{"a script that fails", {"run", GetProject(), "-", "--json"}, "wait 0\nexpect unsaved\n", 1, "<stdin>(2): failed: "},
		{"nothing at all", {"run", GetProject(), "-"}, "", 0, ""},
		{"data", {"run", GetProject(), GetScript(), "--service", "-"}, "{\"users\": [{\"userName\": \"lucia\", \"password\": \"p\"}]}", 0, ""},
		{"data that is wrong", {"run", GetProject(), GetScript(), "--service", "-"}, "{\"users\": [{\"userName\": 5}]}", 3, "<stdin>: /users/0/userName: "},
		{"a report that is none", {"automation", "--compare", "-"}, "{}", 3, "<stdin>: This is not a report"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = Run(Case.Arguments, Case.Input);
		EXPECT_EQ(Result.ExitStatus, Case.Status) << Result.Output << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Errors), std::string::npos) << Result.Errors;
	}
	EXPECT_FALSE(std::filesystem::exists("<stdin>"));
}
