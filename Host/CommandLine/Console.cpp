// Copyright Velmorant. All Rights Reserved.

#include "Console.h"

#include "Containers/StringConv.h"
#include "HostProblems.h"

#include <cstdio>

namespace Console
{
	namespace
	{
		void Write(std::FILE* File, std::string_view Line)
		{
			std::fwrite(Line.data(), 1, Line.size(), File);
			std::fputc('\n', File);
		}
	}

	void Print(const FString& Line)
	{
		PrintUtf8(TCHAR_TO_UTF8(*Line));
	}

	void PrintUtf8(std::string_view Line)
	{
		Write(stdout, Line);
	}

	void PrintError(const FString& Line)
	{
		std::fflush(stdout); // both may go to the same file
		Write(stderr, TCHAR_TO_UTF8(*Line));
	}

	void PrintProblems(const TArray<FHostProblem>& Problems)
	{
		for (const FHostProblem& Problem : Problems)
		{
			PrintError(HostProblems::ToString(Problem));
		}
	}
}
