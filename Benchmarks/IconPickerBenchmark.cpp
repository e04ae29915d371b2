// Copyright Velmorant. All Rights Reserved.

#include "AssetUnloading.h"
#include "BenchmarkEditor.h"
#include "Editor.h"
#include "Engine/DataTable.h"
#include "Engine/World.h"
#include "HostDetailsView.h"
#include "HostPackages.h"
#include "HostSnapshot.h"
#include "IconTable.h"
#include "UObject/Package.h"
#include "VelmorantLevelActors.h"

#include <benchmark/benchmark.h>
#include <string>

namespace IconPickerBenchmark
{
	AVlmInteractiveSpot* SpawnSpot()
	{
		AVlmInteractiveSpot* Spot = GEditor->GetEditorWorldContext().World()->SpawnActor<AVlmInteractiveSpot>();
		Spot->Icon = FFontIconHandler(IconTable::FontID, IconTable::Styles[0], IconTable::GetIconName(1000));
		return Spot;
	}

	/** Whether the grid shows that many icons. */
	bool HasTiles(FHostDetailsView& View, int64 NumIcons)
	{
		const std::string Snapshot = TCHAR_TO_UTF8(*HostSnapshot::Take(View.GetWidget()));
		return Snapshot.find("tiles (" + std::to_string(NumIcons) + " items") != std::string::npos;
	}

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("icons")->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** Opens the details panel of a spot whose icon font is not in memory yet, until the grid shows its icons. */
void OpenIconPicker(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	IconTable::EnterInSettings();
	UObject* Table = IconTable::Make(State.range(0));
	HostPackages::Save(Table->GetPackage());
	AVlmInteractiveSpot* Spot = IconPickerBenchmark::SpawnSpot();
	bool bComplete = true;
	for (auto Iteration : State)
	{
		State.PauseTiming();
		UnloadAsset(*Table);
		{
			State.ResumeTiming();
			FHostDetailsView View({Spot});
			benchmark::DoNotOptimize(View.GetWidget());
			Editor.Tick();
			State.PauseTiming();
			bComplete = bComplete && IconPickerBenchmark::HasTiles(View, State.range(0));
		}
		Table = HostPackages::LoadAsset(IconTable::Package);
		State.ResumeTiming();
	}
	if (!bComplete)
	{
		State.SkipWithError("the grid has other icons than the table");
	}
}
BENCHMARK(OpenIconPicker)->Apply(IconPickerBenchmark::Arguments);

/** Chooses the other style, as a person does, until the grid shows its icons. */
void ChooseIconStyle(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	IconTable::EnterInSettings();
	IconTable::Make(State.range(0));
	FHostDetailsView View({IconPickerBenchmark::SpawnSpot()});
	size_t Style = 0;
	for (auto Iteration : State)
	{
		Style = 1 - Style;
		const FHostInputResult Result = HostSnapshot::Choose(View.GetWidget(), TEXT("Icon Style"), IconTable::Styles[Style]);
		Editor.Tick();
		if (!Result.bDone)
		{
			State.SkipWithError(TCHAR_TO_UTF8(*Result.Reason));
		}
	}
	if (!IconPickerBenchmark::HasTiles(View, Style == 0 ? State.range(0) : State.range(0) / 2))
	{
		State.SkipWithError("the grid has other icons than the style");
	}
}
BENCHMARK(ChooseIconStyle)->Apply(IconPickerBenchmark::Arguments);
