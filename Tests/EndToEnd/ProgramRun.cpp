// Copyright Velmorant. All Rights Reserved.

#include "ProgramRun.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
	const char* const Binary = VELMORANT_BINARY_DIR "/velmorant";

	std::string ReadAll(const std::string& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
	}

	void Redirect(const std::string& Path, int Target)
	{
		const int File = open(Path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
		dup2(File, Target);
		close(File);
	}

	[[noreturn]] void Execute(const std::vector<std::string>& Arguments, const FProgramRun::FEnvironment& Environment)
	{
		for (const auto& [Name, Value] : Environment)
		{
			setenv(Name.c_str(), Value.c_str(), 1);
		}
		std::vector<char*> Values = {const_cast<char*>(Binary)};
		for (const std::string& Argument : Arguments)
		{
			Values.push_back(const_cast<char*>(Argument.c_str()));
		}
		Values.push_back(nullptr);
		execv(Binary, Values.data());
		_exit(127);
	}
}

FProgramRun::FProgramRun(const std::vector<std::string>& Arguments, const FEnvironment& Environment)
{
	std::string Template = (std::filesystem::temp_directory_path() / "velmorant-run-XXXXXX").string();
	if (mkdtemp(Template.data()) == nullptr)
	{
		throw std::runtime_error("no temporary folder could be made");
	}
	Folder = Template;
	Process = fork();
	if (Process == 0)
	{
		Redirect(Folder + "/out", STDOUT_FILENO);
		Redirect(Folder + "/err", STDERR_FILENO);
		Execute(Arguments, Environment);
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

FProgramResult FProgramRun::Wait()
{
	int Status = 0;
	waitpid(Process, &Status, 0);
	Process = -1;
	FProgramResult Result;
	Result.ExitStatus = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	Result.Output = ReadAll(Folder + "/out");
	Result.Errors = ReadAll(Folder + "/err");
	return Result;
}

FProgramResult FProgramRun::Run(const std::vector<std::string>& Arguments, const FEnvironment& Environment)
{
	return FProgramRun(Arguments, Environment).Wait();
}
