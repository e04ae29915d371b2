// Copyright Velmorant. All Rights Reserved.

#include "HostProblems.h"

#include "HostState.h"

namespace HostProblems
{
	namespace
	{
		THostState<TArray<FHostProblem>> Problems;

		struct FNotWritten
		{
			TArray<FHostProblem> All;
			TFunction<void(const FHostProblem&)> Listener;
		};

		THostState<FNotWritten> NotWritten;
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

	void ReportNotWritten(const FString& File, const FString& Message, const FString& Remedy)
	{
		Report(File, 0, Message, Remedy);
		const FHostProblem Problem{File, 0, Message, Remedy};
		NotWritten->All.Add(Problem);
		if (NotWritten->Listener)
		{
			NotWritten->Listener(Problem);
		}
	}

	const TArray<FHostProblem>& GetNotWritten()
	{
		return NotWritten->All;
	}

	void SetNotWrittenListener(TFunction<void(const FHostProblem&)> Listener)
	{
		NotWritten->Listener = MoveTemp(Listener);
	}

	const TArray<FHostProblem>& GetAll()
	{
		return Problems.Get();
	}

	void Clear()
	{
		Problems.Get().Empty();
		NotWritten->All.Empty();
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
