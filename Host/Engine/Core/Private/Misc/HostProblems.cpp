// Copyright Velmorant. All Rights Reserved.

#include "HostProblems.h"

#include "Containers/Map.h"
#include "HostState.h"

namespace HostProblems
{
	struct FProblems
	{
		TArray<FHostProblem> All;
		TMap<FString, TArray<int32>> PlacesByText; // file and message; those that may be the same, for letter case and lines do not count here
	};

	THostState<FProblems> Problems;

	struct FNotWritten
	{
		TArray<FHostProblem> All;
		TFunction<void(const FHostProblem&)> Listener;
	};

	THostState<FNotWritten> NotWritten;

	void Report(const FString& File, int32 Line, const FString& Message, const FString& Remedy)
	{
		TArray<FHostProblem>& All = Problems.Get().All;
		TArray<int32>& Places = Problems.Get().PlacesByText.FindOrAdd(File + TEXT("\n") + Message);
		const bool bKnown = Places.ContainsByPredicate([&](int32 Place) {
			return All[Place].Line == Line && All[Place].File.Equals(File) && All[Place].Message.Equals(Message);
		});
		if (!bKnown)
		{
			Places.Add(All.Add(FHostProblem{File, Line, Message, Remedy}));
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
		return Problems.Get().All;
	}

	void Clear()
	{
		Problems.Get() = FProblems();
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
