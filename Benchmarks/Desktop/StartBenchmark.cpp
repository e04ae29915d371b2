// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "BareWindow.h"
#include "LargeProperty.h"
#include "MeasuredProcess.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace StartBenchmark
{
	/** Whole processes: from their start until the window was painted once, and their end. */
	void Run(benchmark::State& State, const std::vector<std::string>& Arguments)
	{
		double PeakMebibytes = 0.0;
		for (auto Iteration : State)
		{
			const FMeasuredProcess Process = MeasureProcess(Arguments);
			if (Process.ExitStatus != 0)
			{
				State.SkipWithError(("exit status " + std::to_string(Process.ExitStatus)).c_str());
				break;
			}
			State.SetIterationTime(Process.Seconds);
			PeakMebibytes = std::max(PeakMebibytes, Process.PeakMebibytes);
		}
		State.counters["peak_MiB"] = PeakMebibytes;
	}

	/** The window on a project, with a script that does nothing but look. */
	void RunEditor(benchmark::State& State, const FTemporaryFolder& Folder, const std::string& Project)
	{
		Folder.Write("Look.velscript", "expect no panel Nothing\n");
		setenv("XDG_STATE_HOME", Folder.GetNative("State").c_str(), 1);
		setenv("XDG_CONFIG_HOME", Folder.GetNative("Config").c_str(), 1);
		Run(State, {VELMORANT_BINARY_DIR "/velmorant-editor", Project, "--script", Folder.GetNative("Look.velscript").string()});
	}
}

void WindowStart(benchmark::State& State)
{
	const FTemporaryFolder Folder;
	const std::string Project = Folder.GetNative("HarborTower").string();
	std::filesystem::copy(VELMORANT_SOURCE_DIR "/Samples/HarborTower", Project, std::filesystem::copy_options::recursive);
	StartBenchmark::RunEditor(State, Folder, Project);
}
BENCHMARK(WindowStart)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

/** For comparison. */
void BareWindowStart(benchmark::State& State)
{
	StartBenchmark::Run(State, {VELMORANT_BINARY_DIR "/DesktopBenchmarks", BareWindow::Argument});
}
BENCHMARK(BareWindowStart)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

/** With a level of State.range(0) unit volumes open. */
void WindowStartOnLargeProperty(benchmark::State& State)
{
	const FTemporaryFolder Folder;
	LargeProperty::Write(Folder, State.range(0));
	StartBenchmark::RunEditor(State, Folder, Folder.GetNative("Large.uproject").string());
}
BENCHMARK(WindowStartOnLargeProperty)->ArgName("units")->Arg(20000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
