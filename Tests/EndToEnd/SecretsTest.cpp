// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** Passwords: where they come from, and that nothing repeats them. */
class FSecrets : public FProjectOnDisk
{
protected:
	FSecrets() { CopySample(); }

	static inline const std::string Open = "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\n";

	static void ExpectHidden(const FProgramResult& Result, const std::string& Secret)
	{
		EXPECT_EQ((Result.Output + Result.Errors).find(Secret), std::string::npos) << Result.Output << Result.Errors;
	}

	FProgramResult RunWith(const std::string& Lines, const FProgramRun::FEnvironment& More, const std::vector<std::string>& Options = {}) const
	{
		Folder.Write("test.velscript", Lines);
		FProgramRun::FEnvironment Environment = GetEnvironment();
		Environment.insert(Environment.end(), More.begin(), More.end());
		std::vector<std::string> Arguments = {"run", GetProject(), GetScript()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments, Environment);
	}
};

TEST_F(FSecrets, WhatAPasswordFieldHoldsIsPrintedNowhere)
{
	const std::string Typed = Open + "type Login UserPassword \"s3cret \\\"77\"\n";
	const std::string Prints =
		"print property Login UserPassword.Text\n"
		"print snapshot Login\n"
		"inspect Login as Fields\nprint snapshot Fields\n"
		"call VelmorantEditorUtilitiesLibrary.CopyToClipboard \"s3cret \\\"77\" \"is s3cret \\\"77.\"\n"
		"print clipboard\nprint notifications\nprint log\nheading \"s3cret \\\"77\"\n";
	for (const std::vector<std::string>& Options : {std::vector<std::string>{}, {"--json"}})
	{
		const FProgramResult Result = Do(Typed + Prints, Options);
		ExpectHidden(Result, "s3cret");
		ExpectHidden(Do(Typed + "close Login\n" + Open + "restart\nexpect no clipboard \"s3cret \\\"77\"\n", Options), "s3cret");
		if (Options.empty())
		{
			EXPECT_NE(Result.Output.find("UserPassword.Text\n    ••••••••\n"), std::string::npos) << Result.Output;
		}
	}
}

TEST_F(FSecrets, ShortPasswordsAreHiddenWhereTheyStandAlone)
{
	const FProgramResult Result = Do(Open + "type Login UserPassword in\ncall VelmorantEditorUtilitiesLibrary.CopyToClipboard in \"in ink\"\nprint clipboard\nprint snapshot Login\n");
	EXPECT_NE(Result.Output.find("> print clipboard\n    ••••••••\n"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("        •••••••• ink\n"), std::string::npos) << Result.Output;
}

TEST_F(FSecrets, GuessesAtAPasswordAreHiddenToo)
{
	for (const char* Step : {"choose Login UserPassword guess-99", "choose Login NoSuchField guess-99", "expect property Login UserPassword.Text guess-99", "expect property Nowhere UserPassword.Text guess-99",
			 "expect property Login UserPasword.Text guess-99", "expect widget Login UserPassword label guess-99", "expect option Login UserPassword guess-99"})
	{
		for (const std::vector<std::string>& Options : {std::vector<std::string>{}, {"--json"}})
		{
			SCOPED_TRACE(Step);
			const FProgramResult Result = RunScript(Open + "type Login UserPassword s3cret-77\n" + Step + "\n", Options);
			EXPECT_NE(Result.ExitStatus, 0);
			ExpectHidden(Result, "guess-99");
			ExpectHidden(Result, "s3cret-77");
		}
	}
}

TEST_F(FSecrets, PasswordsComeFromTheEnvironment)
{
	const std::string SignIn = Open + "type Login UserName lucia\ntype Login UserPassword env:HARBOR_PASSWORD\nclick Login SummitButton\nwait 1\n";
	const FProgramResult Result = RunWith(SignIn + "expect widget Login LoginStatus value \"Signed in as lucia\"\nprint property Login UserPassword.Text\n", {{"HARBOR_PASSWORD", "harbor-2026"}});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	EXPECT_NE(Result.Output.find("> type Login UserPassword env:HARBOR_PASSWORD\n"), std::string::npos) << Result.Output;
	ExpectHidden(Result, "harbor-2026");

	const FProgramResult Unset = RunWith(SignIn, {}, {"--unattended"});
	EXPECT_EQ(Unset.ExitStatus, 3);
	EXPECT_NE(Unset.Errors.find("(3): error: the environment variable HARBOR_PASSWORD is not set"), std::string::npos) << Unset.Errors;

	Do(Open + "type Login UserName \"env:HARBOR_PASSWORD\"\nexpect widget Login UserName value env:HARBOR_PASSWORD\n");
	EXPECT_EQ(RunScript(Open + "type Login UserName env:no-name\n").ExitStatus, 3);
}

TEST_F(FSecrets, PasswordsAreAskedForOnATerminalWithoutEcho)
{
	Folder.Write("test.velscript", Open + "type Login UserName lucia\ntype Login UserPassword env:HARBOR_PASSWORD\nclick Login SummitButton\nwait 1\nexpect widget Login LoginStatus value \"Signed in as lucia\"\n");
	const FProgramResult Result = FProgramRun::RunOnTerminal({"run", GetProject(), GetScript()}, GetEnvironment(), "HARBOR_PASSWORD: ", "harbor-2026");
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output;
	ExpectHidden(Result, "harbor-2026");
}
