// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "BenchmarkPanel.h"
#include "EditorWidgets/ListDisplayerItemBase.h"
#include "EditorWidgets/VlmEWListDisplayer.h"
#include "HostObjects.h"
#include "PanelLayouts.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

namespace ListDisplayerBenchmark
{
	/** A project with as many unit groups, the first of which is the target and has a single unit. */
	std::string MakeService(int64 NumGroups)
	{
		std::string Json = R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
			"projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", "unitGroups": [
			{"keyCode": "HT-1000000", "name": "Torre Alba", "units": [{"keyCode": "U", "name": "Unit", "unitID": 1}]})";
		for (int64 Index = 1; Index < NumGroups; ++Index)
		{
			const std::string Number = std::to_string(1000000 + Index);
			Json += R"(, {"keyCode": "HT-)" + Number + R"(", "name": "Torre Alba )" + Number + "\"}\n";
		}
		return Json + "]}]}";
	}

	/** The list displayer of an editor with such a project. It shows one unit. */
	struct FScene
	{
		explicit FScene(const benchmark::State& State)
			: Editor(MakeService(State.range(0)))
		{
			Editor.SignIn(TEXT("ada"), TEXT("sesame-77"));
			Editor.SelectProject(TEXT("HT"));
			Panel = std::make_unique<FBenchmarkPanel>(PanelLayouts::ListDisplayer, TEXT("OnListCountChange"));
			ShowGroups();
			Panel->Click(TEXT("ItemList/Torre Alba"));
		}

		/** @return the number of rows, as the panel tells it. */
		int32 ShowGroups()
		{
			Panel->Click(TEXT("HomeButton"));
			Editor.Tick();
			return Panel->TakeEvent();
		}

		void ShowOneUnit()
		{
			CastChecked<UVlmEWListDisplayer>(Panel->Get())->DisplayUnitsFromUnitGroupTarget();
			Editor.Tick();
		}

		FBenchmarkEditor Editor;
		std::unique_ptr<FBenchmarkPanel> Panel;
	};

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("rows")->Arg(50000)->Arg(100000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** From the click on "Home" until the panel shows State.range(0) rows. */
void OpenList(benchmark::State& State)
{
	ListDisplayerBenchmark::FScene Scene(State);
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Scene.ShowOneUnit();
		HostObjects::CollectGarbage();
		State.ResumeTiming();
		if (Scene.ShowGroups() != State.range(0))
		{
			State.SkipWithError("the list has other rows than the project has groups");
			break;
		}
	}
}
BENCHMARK(OpenList)->Apply(ListDisplayerBenchmark::Arguments);

/** From a list of State.range(0) rows to one of a single row, until the others are collected. */
void LeaveList(benchmark::State& State)
{
	ListDisplayerBenchmark::FScene Scene(State);
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Scene.ShowGroups();
		State.ResumeTiming();
		Scene.ShowOneUnit();
		if (HostObjects::CollectGarbage() < State.range(0))
		{
			State.SkipWithError("the rows are still there");
			break;
		}
	}
}
BENCHMARK(LeaveList)->Apply(ListDisplayerBenchmark::Arguments);

/** For comparison: the bare objects of the rows. */
void MakeBareRows(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	std::vector<UListDisplayerItemBase*> Rows;
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Rows.clear();
		HostObjects::CollectGarbage();
		State.ResumeTiming();
		for (int64 Index = 0; Index < State.range(0); ++Index)
		{
			Rows.push_back(NewObject<UListDisplayerItemBase>(GetTransientPackage()));
		}
	}
}
BENCHMARK(MakeBareRows)->Apply(ListDisplayerBenchmark::Arguments);

/** For comparison: the bare objects again, on their way out. */
void CollectBareRows(benchmark::State& State)
{
	FBenchmarkEditor Editor;
	for (auto Iteration : State)
	{
		State.PauseTiming();
		for (int64 Index = 0; Index < State.range(0); ++Index)
		{
			NewObject<UListDisplayerItemBase>(GetTransientPackage());
		}
		State.ResumeTiming();
		HostObjects::CollectGarbage();
	}
}
BENCHMARK(CollectBareRows)->Apply(ListDisplayerBenchmark::Arguments);
