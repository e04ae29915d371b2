// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "BenchmarkPanel.h"
#include "PanelLayouts.h"

#include <benchmark/benchmark.h>
#include <string>

namespace PanelClickBenchmark
{
	/** One user, who may see all of the projects. */
	std::string MakeService(int64 NumProjects)
	{
		std::string KeyCodes;
		std::string Projects;
		for (int64 Index = 0; Index < NumProjects; ++Index)
		{
			const std::string Number = std::to_string(Index);
			KeyCodes += (Index ? ", \"P" : "\"P") + Number + "\"";
			Projects += (Index ? ",\n" : "") + std::string(R"({"keyCode": "P)") + Number + R"(", "apiKey": "key-)" + Number + R"(", "name": "Project )" + Number + "\"}";
		}
		return R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": [)" + KeyCodes + R"(]}], "projects": [)" + Projects + "]}";
	}
}

/** From the click on "Sign in" to the service, which reads its data of State.range(0) projects, and back to the panel. */
void ClickSignIn(benchmark::State& State)
{
	FBenchmarkEditor Editor(PanelClickBenchmark::MakeService(State.range(0)));
	FBenchmarkPanel Panel(PanelLayouts::Login, TEXT("OnLoginResultReceived"));
	Panel.Type(TEXT("UserName"), TEXT("ada"));
	Panel.Type(TEXT("UserPassword"), TEXT("sesame-77"));
	for (auto Iteration : State)
	{
		Panel.Click(TEXT("SummitButton"));
		Editor.Tick();
		if (Panel.TakeEvent() != 1)
		{
			State.SkipWithError("not signed in");
			break;
		}
	}
}
BENCHMARK(ClickSignIn)->ArgName("projects")->Arg(1)->Arg(1000)->Arg(2000)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();
