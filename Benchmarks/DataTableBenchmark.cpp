// Copyright Velmorant. All Rights Reserved.

#include "AssetUnloading.h"
#include "BenchmarkEditor.h"
#include "Engine/DataTable.h"
#include "HostPackages.h"
#include "IconTable.h"
#include "UObject/Package.h"

#include <benchmark/benchmark.h>

namespace DataTableBenchmark
{
	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("rows")->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** From the file of a table with State.range(0) icons to the table in memory. */
void OpenDataTable(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	UDataTable* Table = IconTable::Make(State.range(0));
	HostPackages::Save(Table->GetPackage());
	for (auto Iteration : State)
	{
		State.PauseTiming();
		UnloadAsset(*Table);
		State.ResumeTiming();
		Table = Cast<UDataTable>(HostPackages::LoadAsset(IconTable::Package));
	}
	if (Table->GetRowMap().Num() != State.range(0))
	{
		State.SkipWithError("the table has other rows than were saved");
	}
}
BENCHMARK(OpenDataTable)->Apply(DataTableBenchmark::Arguments);

void SaveDataTable(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	UPackage* Package = IconTable::Make(State.range(0))->GetPackage();
	for (auto Iteration : State)
	{
		if (!HostPackages::Save(Package).Succeeded())
		{
			State.SkipWithError("not saved");
		}
	}
}
BENCHMARK(SaveDataTable)->Apply(DataTableBenchmark::Arguments);
