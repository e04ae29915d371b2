// Copyright Velmorant. All Rights Reserved.

#include "HostProblems.h"

#include "HostState.h"

namespace HostProblems
{
	namespace
	{
		THostState<TArray<FHostProblem>> Problems;
	}

	void Report(const FString& File, int32 Line, const FString& Message, const FString& Remedy)
	{
		const bool bKnown = Problems.Get().ContainsByPredicate([&](const FHostProblem& Problem) {
			return Problem.Line == Line && Problem.File.Equals(File) && Problem.Message.Equals(Message);
		});
		if (!bKnown)
		{
			Problems.Get().Add(FHostProblem{File, Line, Message, Remedy});
		}
	}

	const TArray<FHostProblem>& GetAll()
	{
		return Problems.Get();
	}

	void Clear()
	{
		Problems.Get().Empty();
	}

	FString ToString(const FHostProblem& Problem)
	{
		FString Result = Problem.File;
		if (Problem.Line > 0)
		{
			Result += TEXT("(") + FString::FromInt(Problem.Line) + TEXT(")");
		}
		Result += Problem.File.IsEmpty() ? TEXT("") : TEXT(": ");
		Result += Problem.Message;
		if (!Problem.Remedy.IsEmpty())
		{
			Result += TEXT(". ") + Problem.Remedy;
		}
		return Result;
	}
}
