// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "HostDetailsView.h"
#include "PropertySheets.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

#include <benchmark/benchmark.h>

namespace DetailsPanelBenchmark
{
	UClass* GetSheet(int64 NumProperties)
	{
		return NumProperties == 200 ? UPropertySheet::StaticClass() : UDoublePropertySheet::StaticClass();
	}
}

/** Opens the details panel of an object with State.range(0) properties, in blocks of ten, until it shows its rows. */
void OpenDetails(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	const TStrongObjectPtr<UObject> Sheet(NewObject<UObject>(GetTransientPackage(), DetailsPanelBenchmark::GetSheet(State.range(0))));
	int64 NumRows = 0;
	for (auto Iteration : State)
	{
		FHostDetailsView View({Sheet.Get()});
		benchmark::DoNotOptimize(View.GetWidget());
		Editor.Tick();
		State.PauseTiming();
		NumRows = View.GetRowTitles().Num();
		State.ResumeTiming();
	}
	if (NumRows < State.range(0))
	{
		State.SkipWithError("the panel has fewer rows than the object has properties");
	}
}
BENCHMARK(OpenDetails)->ArgName("properties")->Arg(200)->Arg(400)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
