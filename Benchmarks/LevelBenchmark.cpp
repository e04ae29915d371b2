// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "HostEditor.h"
#include "HostObjects.h"
#include "UnitVolumeActor.h"

#include <benchmark/benchmark.h>

namespace LevelBenchmark
{
	const TCHAR* const Map = TEXT("/Game/Maps/Large");

	UWorld& GetWorld()
	{
		return *GEditor->GetEditorWorldContext().World();
	}

	/** Fills the open level with unit volumes, each with a place and a unit of its own, and saves it. */
	void Make(int64 NumActors)
	{
		for (int64 Index = 0; Index < NumActors; ++Index)
		{
			const FVector Location(static_cast<double>(Index % 100) * 350.0, static_cast<double>(Index / 100) * 350.0, 12.5);
			AUnitVolumeActor* Volume = GetWorld().SpawnActor<AUnitVolumeActor>(Location, FRotator::ZeroRotator);
			const int32 Unit = static_cast<int32>(Index);
			Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(Unit, FString::Printf(TEXT("HT-%06d"), Unit));
			Volume->SetActorLabel(FString::Printf(TEXT("Unit %d"), Unit));
		}
		HostEditor::SaveOpenMapAs(Map);
	}

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("actors")->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** From the file of a level with State.range(0) actors to the open level, instead of an empty one. */
void OpenLevel(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	LevelBenchmark::Make(State.range(0));
	for (auto Iteration : State)
	{
		State.PauseTiming();
		HostEditor::OpenMap(FString());
		HostObjects::CollectGarbage();
		State.ResumeTiming();
		HostEditor::OpenMap(LevelBenchmark::Map);
	}
	if (LevelBenchmark::GetWorld().GetCurrentLevel()->Actors.Num() != State.range(0))
	{
		State.SkipWithError("the level has other actors than were saved");
	}
}
BENCHMARK(OpenLevel)->Apply(LevelBenchmark::Arguments);

void SaveLevel(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	LevelBenchmark::Make(State.range(0));
	for (auto Iteration : State)
	{
		if (!HostEditor::SaveOpenMap())
		{
			State.SkipWithError("not saved");
		}
	}
}
BENCHMARK(SaveLevel)->Apply(LevelBenchmark::Arguments);
