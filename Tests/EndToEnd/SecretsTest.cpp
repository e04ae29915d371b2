// Copyright Velmorant. All Rights Reserved.

#include "FakeSecretStore.h"
#include "ProjectOnDisk.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

/** Passwords: where they come from, and that nothing repeats them. */
class Secrets : public FProjectOnDisk
{
protected:
	Secrets() { CopySample(); }

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

TEST_F(Secrets, WhatAPasswordFieldHoldsIsPrintedNowhere)
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

TEST_F(Secrets, ShortPasswordsAreHiddenWhereTheyStandAlone)
{
	const FProgramResult Result = Do(Open + "type Login UserPassword in\ncall VelmorantEditorUtilitiesLibrary.CopyToClipboard in \"in ink\"\nprint clipboard\nprint snapshot Login\n");
	EXPECT_NE(Result.Output.find("> print clipboard\n    ••••••••\n"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("        •••••••• ink\n"), std::string::npos) << Result.Output;
}

TEST_F(Secrets, GuessesAtAPasswordAreHiddenToo)
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

TEST_F(Secrets, PasswordsComeFromTheEnvironment)
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

TEST_F(Secrets, PasswordsAreAskedForOnATerminalWithoutEcho)
{
	Folder.Write("test.velscript", Open + "type Login UserName lucia\ntype Login UserPassword env:HARBOR_PASSWORD\nclick Login SummitButton\nwait 1\nexpect widget Login LoginStatus value \"Signed in as lucia\"\n");
	const FProgramResult Result = FProgramRun::RunOnTerminal({"run", GetProject(), GetScript()}, GetEnvironment(), "HARBOR_PASSWORD: ", "harbor-2026");
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output;
	ExpectHidden(Result, "harbor-2026");
}

TEST_F(Secrets, RememberedUsersAreKeptInTheDesktopsSecretStore)
{
	const FFakeSecretStore Store(Folder);
	const FProgramRun::FEnvironment Desktop = {{"PATH", Store.GetPath()}, {"VELMORANT_NO_KEYRING", ""}, {"HARBOR_PASSWORD", "harbor-2026"}};
	const std::string SignIn = Open + "type Login UserName lucia\ntype Login UserPassword env:HARBOR_PASSWORD\n";
	const std::string Click = "click Login SummitButton\nwait 1\nexpect widget Login LoginStatus value \"Signed in as lucia\"\n";
	const std::string File = "UserConfig/velmorant/VelmorantUser.json";

	ExpectHidden(RunWith(SignIn + "check Login RememberUserCheckBox\n" + Click, Desktop), "harbor-2026");
	EXPECT_NE(Store.GetKept().find("harbor-2026"), std::string::npos);
	EXPECT_EQ(Store.GetCalls().find("harbor-2026"), std::string::npos) << "on a command line everybody can read it";
	EXPECT_EQ(Folder.Read(File), R"({"inSecretStore":true})");

	const FProgramResult Again = RunWith(Open + Click, Desktop);
	EXPECT_EQ(Again.ExitStatus, 0) << "remembered: " << Again.Output << Again.Errors;
	const FProgramResult Forgotten = RunWith(Open + "uncheck Login RememberUserCheckBox\n" + Click, Desktop);
	EXPECT_EQ(Forgotten.ExitStatus, 0) << Forgotten.Output << Forgotten.Errors;
	EXPECT_FALSE(Store.HasKept());
	EXPECT_FALSE(Folder.Exists(File));

	const std::string Calls = Store.GetCalls();
	const FProgramResult OnServer = RunWith(SignIn + "check Login RememberUserCheckBox\n" + Click, {{"PATH", Store.GetPath()}, {"HARBOR_PASSWORD", "harbor-2026"}});
	EXPECT_NE(OnServer.Output.find("not in the desktop's secret store: VELMORANT_NO_KEYRING is set."), std::string::npos) << OnServer.Output << OnServer.Errors;
	EXPECT_NE(Folder.Read(File).find("harbor-2026"), std::string::npos);
	EXPECT_EQ(Store.GetCalls(), Calls);
}

TEST_F(Secrets, WhatKilledProgramsLeftGoesAtTheNextStart)
{
	const std::vector<std::string> Leftovers = {"UserConfig/velmorant/.velmorant-4711-1.tmp", "UserState/velmorant/.velmorant-4711-2.tmp", "Project/Config/.velmorant-4711-3.tmp",
		"Project/Saved/Config/LinuxEditor/.velmorant-4711-4.tmp", "Project/Content/Deep/Down/.velmorant-4711-5.tmp"};
	const std::string Live = "UserConfig/velmorant/.velmorant-4712-1.tmp";
	const std::string Foreign = "UserConfig/velmorant/.velmorant-notes.tmp";
	for (const std::string& File : Leftovers)
	{
		Folder.Write(File, "harbor-2026");
	}
	Folder.Write(Live, "somebody writes it");
	Folder.Write(Foreign, "notes");
	const int Writer = open(Folder.GetNative(Live).c_str(), O_RDWR | O_CLOEXEC);
	ASSERT_EQ(flock(Writer, LOCK_EX), 0);

	EXPECT_EQ(Check().ExitStatus, 1);
	EXPECT_TRUE(Folder.Exists(Leftovers[0])) << "looking at a project changes nothing";
	Do("wait 1\n");
	for (const std::string& File : Leftovers)
	{
		EXPECT_FALSE(Folder.Exists(File)) << File;
	}
	EXPECT_TRUE(Folder.Exists(Live));
	EXPECT_TRUE(Folder.Exists(Foreign));
	close(Writer);
	Do("wait 1\n");
	EXPECT_FALSE(Folder.Exists(Live));
}

TEST(Leaks, AreFoundInOutputAndFiles)
{
	EXPECT_EQ(Canary::FindLeaks("log: " + Canary::Password, "").size(), 1u);
	EXPECT_EQ(Canary::FindLeaks("key: " + Canary::Key, "print log\n").size(), 1u);
	EXPECT_TRUE(Canary::FindLeaks("key: " + Canary::Key, "print property default:VelmorantSDKSettings ApiKey\n").empty());
	const FTemporaryFolder Folder;
	Folder.Write("Project/Config/DefaultGame.ini", Canary::Key);
	Folder.Write("UserConfig/velmorant/VelmorantUser.json", Canary::Password);
	EXPECT_TRUE(Canary::FindLeaksIn(Folder.GetNative()).empty());
	Folder.Write("Project/Content/Level.umap.json", Canary::Key + Canary::Password);
	Folder.Write("UserState/velmorant/repair.json", Canary::Password);
	EXPECT_EQ(Canary::FindLeaksIn(Folder.GetNative()).size(), 3u);
}
