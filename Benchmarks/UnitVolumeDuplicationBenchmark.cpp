// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "Editor.h"
#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"
#include "Engine/World.h"
#include "HostObjects.h"
#include "HostUserWidgets.h"
#include "PairwiseClashes.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

#include <benchmark/benchmark.h>

namespace UnitVolumeDuplicationBenchmark
{
	/** A level of State.range(0) volumes: every tenth is a duplicate of the one before. */
	struct FScene
	{
		explicit FScene(const benchmark::State& State)
		{
			for (int32 Index = 0; Index < State.range(0); ++Index)
			{
				const int32 Unit = Index % 10 == 9 ? Index - 1 : Index;
				AUnitVolumeActor* Volume = GetWorld().SpawnActor<AUnitVolumeActor>();
				Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(Unit, FString::Printf(TEXT("HT-%06d"), Unit));
				Identifiers.Add(&Volume->UniqueIdentifier);
			}
		}

		static UWorld& GetWorld() { return *GEditor->GetEditorWorldContext().World(); }

		FBenchmarkEditor Editor;
		FPairwiseClashes::FIdentifiers Identifiers;
	};

	/** The list with a layout that only counts the groups. */
	UClass* MakeListClass(int32& OutNumGroups)
	{
		UClass* Class = HostObjects::DeriveClass(UVlmEWUnitVolumeDuplicationList::StaticClass(), TEXT("BenchmarkList_C"), GetTransientPackage());
		HostObjects::AddScriptFunction(Class, TEXT("OnDuplicationsList"), [&OutNumGroups](UObject*, FFrame& Stack, void*) {
			OutNumGroups = reinterpret_cast<const TArray<UVlmEWUnitVolumeDuplication_Item*>*>(Stack.Locals)->Num();
		});
		return Class;
	}
}

void CheckForDuplicates(benchmark::State& State)
{
	const UnitVolumeDuplicationBenchmark::FScene Scene(State);
	int32 NumGroups = 0;
	const TStrongObjectPtr<UClass> Class(UnitVolumeDuplicationBenchmark::MakeListClass(NumGroups));
	for (auto Iteration : State)
	{
		State.PauseTiming();
		HostObjects::CollectGarbage(); // items of the check before
		const TStrongObjectPtr<UUserWidget> List(FHostUserWidgets::Create(&Scene.GetWorld(), Class.Get()));
		State.ResumeTiming();
		CastChecked<UVlmEWUnitVolumeDuplicationList>(List.Get())->CheckForDuplications();
	}
	State.counters["groups"] = NumGroups;
}
BENCHMARK(CheckForDuplicates)->Arg(5000)->Arg(50000)->Arg(100000)->Unit(benchmark::kMillisecond)->Repetitions(3);

/** For comparison. */
void CheckForDuplicatesPairwise(benchmark::State& State)
{
	const UnitVolumeDuplicationBenchmark::FScene Scene(State);
	int32 NumGroups = 0;
	for (auto Iteration : State)
	{
		NumGroups = FPairwiseClashes(Scene.Identifiers).GetGroups().Num();
	}
	State.counters["groups"] = NumGroups;
}
BENCHMARK(CheckForDuplicatesPairwise)->Arg(5000)->Unit(benchmark::kMillisecond)->Repetitions(3);
