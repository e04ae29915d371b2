// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "HostDetailsView.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantUIStyleConfiguration.h"

#include <benchmark/benchmark.h>

/** Opens the details of a palette: State.range(0) properties of colours, three each, in their rows. */
static void OpenDetails(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	const TStrongObjectPtr<UVelmorantUIStyleConfiguration> Style(NewObject<UVelmorantUIStyleConfiguration>());
	Style->SimpleColors.SetNum(static_cast<int32>(State.range(0) / 3));
	for (auto Iteration : State)
	{
		FHostDetailsView View({Style.Get()});
		benchmark::DoNotOptimize(View.GetWidget());
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(OpenDetails)->ArgName("properties")->Arg(201)->Arg(402)->Arg(804)->Arg(1608)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
