// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>

class CommandLineUse : public FProjectOnDisk
{
};

TEST_F(CommandLineUse, BadUsageEndsWithTwo)
{
	MakeProject();
	Folder.Write("test.velscript", "");
	Folder.Write("Two/A.uproject", "{}");
	Folder.Write("Two/B.uproject", "{}");
	std::filesystem::create_directories(Folder.GetNative("Empty"));
	const std::string Root = Folder.GetNative().string();
	const struct
	{
		const char* Behaviour;
		std::vector<std::string> Arguments;
		const char* Message;
	} Cases[] = {
		{"nothing at all", {}, "subcommand"},
		{"an unknown command", {"chek", GetProject()}, "There is no command chek. Did you mean \"check\"? There are: check, run, "},
		{"an unknown command, with what to do", {"chek", GetProject()}, "completion, manual\nRun with --help"},
		{"no project named", {"check"}, "PROJECT"},
		{"an unknown option", {"check", GetProject(), "--fix"}, "There is no --fix. There are: "},
		{"a mistyped option", {"run", GetProject(), GetScript(), "--platfrom=Linux"}, "Did you mean \"--platform\"?"},
		{"an unknown colouring", {"check", GetProject(), "--color", "red"}, "--color"},
		{"two files out of one pipe", {"run", GetProject(), "-", "--service", "-"}, "Only one file can come from the standard input."},
		{"completion for no shell", {"completion", "sh"}, "SHELL"},
		{"a repair and its undoing at once", {"check", GetProject(), "--repair", "--undo"}, "--undo"},
		{"a platform without a name", {"check", GetProject(), "--platform"}, "--platform"},
		{"too many arguments", {"check", GetProject(), GetProject()}, ""},
		{"no such project", {"check", Root + "/None"}, "there is no such project"},
		{"a folder without a project", {"check", Root + "/Empty"}, "there is no .uproject"},
		{"a folder with two", {"check", Root + "/Two"}, "more than one"},
		{"a file that is no project", {"check", GetScript()}, "no .uproject"},
		{"run without a script", {"run", GetProject()}, "SCRIPT"},
		{"run in no project", {"run", Root + "/None", GetScript()}, "there is no such project"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = FProgramRun::Run(Case.Arguments, GetEnvironment());
		EXPECT_EQ(Result.ExitStatus, 2) << Result.Output;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ(Result.Output, "");
	}
}

TEST_F(CommandLineUse, WithJsonWhatStopsTheProgramIsAnObject)
{
	MakeProject();
	Folder.Write("wrong.velscript", "wait 0\ndance\n");
	const std::string Root = Folder.GetNative().string();
	const struct
	{
		const char* Behaviour;
		std::vector<std::string> Arguments;
		int Status;
		const char* Message;
	} Cases[] = {
		{"no project named", {"check", "--json"}, 2, "PROJECT"},
		{"an unknown command", {"chek", "--json"}, 2, "There is no command chek."},
		{"an unknown option", {"check", GetProject(), "--json", "--fix"}, 2, "--fix"},
		{"run without a script", {"run", "--json", GetProject()}, 2, "SCRIPT"},
		{"no such project", {"check", Root + "/N\"one\"", "--json"}, 2, "there is no such project"},
		{"run in no project", {"run", Root + "/None", GetScript(), "--json"}, 2, "there is no such project"},
		{"no such script", {"run", GetProject(), Root + "/none.velscript", "--json"}, 3, "there is no such script"},
		{"a wrong script", {"run", GetProject(), Root + "/wrong.velscript", "--json"}, 3, "wrong.velscript(2)"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = FProgramRun::Run(Case.Arguments, GetEnvironment());
		EXPECT_EQ(Result.ExitStatus, Case.Status);
		const nlohmann::json Json = nlohmann::json::parse(Result.Output, nullptr, false);
		ASSERT_TRUE(Json.is_object()) << Result.Output;
		EXPECT_EQ(Json.value("status", -1), Case.Status);
		EXPECT_NE(Json.value("error", "").find(Case.Message), std::string::npos) << Result.Output;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << "people read it as before";
	}
}

TEST_F(CommandLineUse, HelpIsNoError)
{
	for (const std::vector<std::string>& Arguments : {std::vector<std::string>{"--help"}, {"check", "--help"}, {"run", "--help"}, {"check", "--help", "--json"}, {"install", "--help"}, {"contract", "--help"}, {"automation", "--help"}, {"completion", "--help"}, {"manual", "--help"}, {"--version"}})
	{
		const FProgramResult Result = FProgramRun::Run(Arguments);
		EXPECT_EQ(Result.ExitStatus, 0);
		EXPECT_NE(Result.Output, "");
	}
}

TEST_F(CommandLineUse, MissingFilesOfRunAreNamed)
{
	MakeProject();
	const FProgramResult Script = FProgramRun::Run({"run", GetProject(), GetScript()}, GetEnvironment());
	EXPECT_EQ(Script.ExitStatus, 3);
	EXPECT_NE(Script.Errors.find(GetScript()), std::string::npos) << Script.Errors;

	const std::string Service = Folder.GetNative("none.json").string();
	const FProgramResult Data = RunScript("wait 0\n", {"--service", Service});
	EXPECT_EQ(Data.ExitStatus, 3);
	EXPECT_NE(Data.Errors.find(Service), std::string::npos) << Data.Errors;
}

TEST_F(CommandLineUse, AMalformedProjectFileIsNamed)
{
	Folder.Write("Project/Test.uproject", "{ \"FileVersion\": 3,\n  broken\n");
	Folder.Write("test.velscript", "wait 0\n");
	for (const std::vector<std::string>& Arguments : {std::vector<std::string>{"check", GetProject()}, {"check", GetProject(), "--repair"}, {"run", GetProject(), GetScript()}})
	{
		SCOPED_TRACE(Arguments[0]);
		const FProgramResult Result = FProgramRun::Run(Arguments, GetEnvironment());
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_NE(Result.Errors.find(GetProject() + "/Test.uproject(2): "), std::string::npos) << Result.Errors;
		EXPECT_FALSE(Folder.Exists(IniFile));
	}
}
