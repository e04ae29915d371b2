// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "BenchmarkPanel.h"
#include "CountOccurrences.h"
#include "EditorWidgets/VlmEWPanelData.h"
#include "PanelLayouts.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cctype>
#include <cstring>
#include <string>
#include <vector>

namespace ListFilterBenchmark
{
	const char* const SearchText = "Penthouse";

	struct FRow
	{
		std::string KeyCode;
		std::string Name;
	};

	bool IsMatch(const benchmark::State& State, int64 Index)
	{
		return State.range(1) > 0 && Index % (100 / State.range(1)) == 0;
	}

	int64 CountMatches(const benchmark::State& State)
	{
		return State.range(0) * State.range(1) / 100;
	}

	/** State.range(0) rows, of which State.range(1) percent (1, 100 or none) contain the search text; the others have its first letter. */
	std::vector<FRow> MakeRows(const benchmark::State& State)
	{
		std::vector<FRow> Rows;
		for (int64 Index = 0; Index < State.range(0); ++Index)
		{
			const std::string Number = std::to_string(1000000 + Index);
			Rows.push_back({"HT-" + Number, (IsMatch(State, Index) ? "Torre Alba penthouse " : "Torre Alba, pool side ") + Number});
		}
		return Rows;
	}

	std::string MakeService(const std::vector<FRow>& Rows)
	{
		std::string Json = R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
			"projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", "unitGroups": [)";
		for (const FRow& Row : Rows)
		{
			Json += R"({"keyCode": ")" + Row.KeyCode + R"(", "name": ")" + Row.Name + "\"},\n";
		}
		Json.resize(Json.size() - 2); // without the last comma
		return Json + "]}]}";
	}

	/** A figure counts only when the rows found are the right ones, in number at least. */
	void Report(benchmark::State& State, int64 NumFound)
	{
		State.counters["found"] = static_cast<double>(NumFound);
		if (NumFound != CountMatches(State))
		{
			State.SkipWithError(("found " + std::to_string(NumFound) + " rows").c_str());
		}
	}

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgNames({"rows", "percent"})->ArgsProduct({{50000, 100000}, {0, 1, 100}})->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** A change of the search text until the panel shows the rows that are left. */
void ListFilterKeystroke(benchmark::State& State)
{
	FBenchmarkEditor Editor(ListFilterBenchmark::MakeService(ListFilterBenchmark::MakeRows(State)));
	Editor.SignIn(TEXT("ada"), TEXT("sesame-77"));
	Editor.SelectProject(TEXT("HT"));
	FBenchmarkPanel Panel(PanelLayouts::ListDisplayer, TEXT("OnListCountChange"));
	IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get());
	Editor.Tick();

	const FString SearchText(ListFilterBenchmark::SearchText);
	int32 NumFound = -1;
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Panel.Type(TEXT("SearchText"), TEXT("")); // the text must change, or nothing happens
		Editor.Tick();
		Panel.TakeEvent();
		State.ResumeTiming();
		Panel.Type(TEXT("SearchText"), *SearchText);
		Editor.Tick();
		NumFound = Panel.TakeEvent();
	}
	ListFilterBenchmark::Report(State, NumFound);
}
BENCHMARK(ListFilterKeystroke)->Apply(ListFilterBenchmark::Arguments);

/** For comparison: the C library, row by row. */
void ListFilterStrcasestr(benchmark::State& State)
{
	std::vector<std::string> Texts;
	for (const ListFilterBenchmark::FRow& Row : ListFilterBenchmark::MakeRows(State))
	{
		Texts.push_back(Row.KeyCode + Row.Name);
	}
	int64 NumFound = 0;
	for (auto Iteration : State)
	{
		NumFound = std::count_if(Texts.begin(), Texts.end(), [](const std::string& Text) { return strcasestr(Text.c_str(), ListFilterBenchmark::SearchText) != nullptr; });
	}
	ListFilterBenchmark::Report(State, NumFound);
}
BENCHMARK(ListFilterStrcasestr)->Apply(ListFilterBenchmark::Arguments);

/** For comparison: the C library over all rows at once, in lower case beforehand. */
void ListFilterMemmem(benchmark::State& State)
{
	const auto ToLower = [](std::string Text) {
		std::transform(Text.begin(), Text.end(), Text.begin(), [](unsigned char Char) { return static_cast<char>(std::tolower(Char)); });
		return Text;
	};
	std::string All;
	for (const ListFilterBenchmark::FRow& Row : ListFilterBenchmark::MakeRows(State))
	{
		All += ToLower(Row.KeyCode + Row.Name) + "\n";
	}
	const std::string Wanted = ToLower(ListFilterBenchmark::SearchText);
	int64 NumFound = 0;
	for (auto Iteration : State)
	{
		NumFound = CountOccurrences(All, Wanted);
	}
	ListFilterBenchmark::Report(State, NumFound);
}
BENCHMARK(ListFilterMemmem)->Apply(ListFilterBenchmark::Arguments);
