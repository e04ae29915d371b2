// Copyright Velmorant. All Rights Reserved.

#include "ProgramRun.h"

#include "Canary.h"
#include "FileBytes.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <pty.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ProgramRun
{
	void Redirect(const std::string& Path, int Target)
	{
		const int File = open(Path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
		dup2(File, Target);
		close(File);
	}

	void RedirectToClosedPipe(int Target)
	{
		int Ends[2] = {-1, -1};
		if (pipe(Ends) == 0)
		{
			dup2(Ends[1], Target);
			close(Ends[0]);
			close(Ends[1]);
		}
	}

	std::string ReadScript(const std::vector<std::string>& Arguments)
	{
		const auto Script = std::find_if(Arguments.begin(), Arguments.end(), [](const std::string& Argument) { return Argument.ends_with(".velscript"); });
		return Script != Arguments.end() && std::filesystem::is_regular_file(*Script) ? ReadBytes(*Script) : std::string(); // a pipe may never end
	}

	void ExpectNoLeaks(const FProgramResult& Result, const std::string& Script)
	{
		for (const std::string& Leak : Canary::FindLeaks(Result.Output + Result.Errors, Script))
		{
			ADD_FAILURE() << Leak << ":\n"
						  << Result.Output << Result.Errors;
		}
	}

	FProgramResult WaitFor(pid_t Process)
	{
		int Status = 0;
		struct rusage Usage = {};
		wait4(Process, &Status, 0, &Usage);
		FProgramResult Result;
		Result.PeakKilobytes = Usage.ru_maxrss;
		Result.ExitStatus = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
		return Result;
	}

	[[noreturn]] void Execute(const std::vector<std::string>& Arguments, const FProgramRun::FEnvironment& Environment)
	{
		setenv("VELMORANT_NO_KEYRING", "1", 1); // tests leave the desktop's real secret store alone
		setenv("HARBOR_BUILD_PASSWORD", Canary::Password.c_str(), 1); // as on a build server, where nothing may tell them
		setenv("HARBOR_BUILD_KEY", Canary::Key.c_str(), 1);
		for (const auto& [Name, Value] : Environment)
		{
			setenv(Name.c_str(), Value.c_str(), 1);
		}
		std::vector<char*> Values = {FProgramRun::Program.data()};
		for (const std::string& Argument : Arguments)
		{
			Values.push_back(const_cast<char*>(Argument.c_str()));
		}
		Values.push_back(nullptr);
		alarm(120); // seconds
		execv(FProgramRun::Program.c_str(), Values.data());
		_exit(127);
	}
}

std::string FProgramRun::Program = VELMORANT_BINARY_DIR "/velmorant";

FProgramRun::FProgramRun(const std::vector<std::string>& Arguments, const FEnvironment& Environment, EOutput Output, const std::string& Input)
{
	std::string Template = (std::filesystem::temp_directory_path() / "velmorant-run-XXXXXX").string();
	if (mkdtemp(Template.data()) == nullptr)
	{
		throw std::runtime_error("no temporary folder could be made");
	}
	Folder = Template;
	std::ofstream(Folder + "/in", std::ios::binary) << Input;
	Script = ProgramRun::ReadScript(Arguments);
	Process = fork();
	if (Process == 0)
	{
		dup2(open((Folder + "/in").c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
		ProgramRun::Redirect(Output == EOutput::FullDisk ? "/dev/full" : Folder + "/out", STDOUT_FILENO);
		if (Output == EOutput::ClosedPipe)
		{
			ProgramRun::RedirectToClosedPipe(STDOUT_FILENO);
		}
		ProgramRun::Redirect(Folder + "/err", STDERR_FILENO);
		ProgramRun::Execute(Arguments, Environment);
	}
}

FProgramRun::~FProgramRun()
{
	if (Process > 0)
	{
		Wait();
	}
	std::error_code Ignored;
	std::filesystem::remove_all(Folder, Ignored);
}

void FProgramRun::Kill() const
{
	kill(Process, SIGKILL);
}

FProgramResult FProgramRun::Wait()
{
	FProgramResult Result = ProgramRun::WaitFor(Process);
	Process = -1;
	Result.Output = ReadBytes(Folder + "/out");
	Result.Errors = ReadBytes(Folder + "/err");
	ProgramRun::ExpectNoLeaks(Result, Script);
	return Result;
}

FProgramResult FProgramRun::Run(const std::vector<std::string>& Arguments, const FEnvironment& Environment, EOutput Output)
{
	return FProgramRun(Arguments, Environment, Output).Wait();
}

FProgramResult FProgramRun::RunWithInput(const std::vector<std::string>& Arguments, const FEnvironment& Environment, const std::string& Input)
{
	return FProgramRun(Arguments, Environment, EOutput::Kept, Input).Wait();
}

FProgramResult FProgramRun::RunOnTerminal(const std::vector<std::string>& Arguments, const FEnvironment& Environment, const std::string& Prompt, const std::string& Line)
{
	int Terminal = -1;
	const pid_t Process = forkpty(&Terminal, nullptr, nullptr, nullptr);
	if (Process == 0)
	{
		ProgramRun::Execute(Arguments, Environment);
	}
	std::string Shown;
	std::string Typed = Line + "\n";
	char Buffer[4096];
	for (ssize_t Count = 0; (Count = read(Terminal, Buffer, sizeof(Buffer))) > 0;) // fails when the program has closed the terminal
	{
		Shown.append(Buffer, static_cast<size_t>(Count));
		if (!Typed.empty() && Shown.find(Prompt) != std::string::npos)
		{
			Typed.erase(0, static_cast<size_t>(write(Terminal, Typed.data(), Typed.size())));
		}
	}
	close(Terminal);
	FProgramResult Result = ProgramRun::WaitFor(Process);
	Result.Output = Shown;
	ProgramRun::ExpectNoLeaks(Result, ProgramRun::ReadScript(Arguments));
	return Result;
}
