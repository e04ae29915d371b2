// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "LevelVariantSets.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#include <benchmark/benchmark.h>

namespace LevelVariantsBenchmark
{
	const int32 ProductsPerSet = 20;
	const int32 GroupsPerRoom = 10;

	void FillRecord(UVelmorantConfiguratorDataAsset& DataAsset, int32 NumSets)
	{
		for (int32 Set = 0; Set < NumSets; ++Set)
		{
			if (Set % GroupsPerRoom == 0)
			{
				DataAsset.ConfiguratorUnit.Rooms.AddDefaulted_GetRef().Name = FString::Printf(TEXT("Room %d"), Set / GroupsPerRoom);
			}
			FVelmorantConfigGroup& Group = DataAsset.ConfiguratorUnit.Rooms.Last().Groups.AddDefaulted_GetRef();
			Group.Name = FString::Printf(TEXT("Group %d"), Set);
			for (int32 Product = 0; Product < ProductsPerSet; ++Product)
			{
				Group.Products.AddDefaulted_GetRef().Name = FString::Printf(TEXT("Product %d of %d"), Product, Set);
			}
		}
	}

	/** An editor with a configurator data asset of State.range(0) groups and empty level variant sets. */
	struct FScene
	{
		explicit FScene(const benchmark::State& State)
			: DataAsset(NewObject<UVelmorantConfiguratorDataAsset>())
			, LevelVariantSets(NewObject<ULevelVariantSets>())
		{
			FillRecord(*DataAsset.Get(), static_cast<int32>(State.range(0)));
		}

		void Generate() const { UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(DataAsset.Get(), LevelVariantSets.Get()); }

		FBenchmarkEditor Editor;
		TStrongObjectPtr<UVelmorantConfiguratorDataAsset> DataAsset;
		TStrongObjectPtr<ULevelVariantSets> LevelVariantSets;
	};
}

void GenerateLevelVariantSets(benchmark::State& State)
{
	for (auto Iteration : State)
	{
		State.PauseTiming();
		{
			const LevelVariantsBenchmark::FScene Scene(State);
			State.ResumeTiming();
			Scene.Generate();
			State.PauseTiming();
		}
		State.ResumeTiming();
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(GenerateLevelVariantSets)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond)->Repetitions(3);

void RegenerateUnchangedLevelVariantSets(benchmark::State& State)
{
	const LevelVariantsBenchmark::FScene Scene(State);
	Scene.Generate();
	for (auto Iteration : State)
	{
		Scene.Generate();
	}
	State.counters["sets"] = Scene.LevelVariantSets->GetVariantSets().Num();
}
BENCHMARK(RegenerateUnchangedLevelVariantSets)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond)->Repetitions(3);
