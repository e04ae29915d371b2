// Copyright Velmorant. All Rights Reserved.

#include "MeasuredProcess.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace CheckBenchmark
{
	const std::string Program = VELMORANT_BINARY_DIR "/velmorant";
	const std::string Sample = VELMORANT_SOURCE_DIR "/Samples/HarborTower";

	/** Times whole processes; any other exit status than the expected one is an error, not a figure. */
	void Run(benchmark::State& State, const std::vector<std::string>& Arguments, int ExpectedStatus)
	{
		double PeakMebibytes = 0.0;
		for (auto Iteration : State)
		{
			const FMeasuredProcess Process = MeasureProcess(Arguments);
			if (Process.ExitStatus != ExpectedStatus)
			{
				State.SkipWithError(("exit status " + std::to_string(Process.ExitStatus)).c_str());
				break;
			}
			State.SetIterationTime(Process.Seconds);
			PeakMebibytes = std::max(PeakMebibytes, Process.PeakMebibytes);
		}
		State.counters["peak_MiB"] = PeakMebibytes;
	}

	/** A project whose DefaultEngine.ini has profile lines in the middle of so many bytes of other settings, in 6,000 sections. */
	void WriteLargeProject(const FTemporaryFolder& Folder, size_t Size)
	{
		constexpr size_t NumSections = 6000;
		std::string Settings;
		for (size_t Section = 0; Section < NumSections; ++Section)
		{
			Settings += "[/Script/Plugin.Settings" + std::to_string(Section) + "]\n";
			if (Section == NumSections / 2)
			{
				Settings += "[/Script/Engine.CollisionProfile]\n+Profiles=(Name=\"Glass\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"WorldStatic\")\n";
			}
			for (size_t Key = 0; Settings.size() < Size / NumSections * (Section + 1); ++Key)
			{
				Settings += "+Entries=(Name=\"Entry " + std::to_string(Key) + "\",Value=" + std::to_string(Section * Key) + ",bEnabled=True)\n";
			}
		}
		Folder.Write("Config/DefaultEngine.ini", Settings);
		Folder.Write("Large.uproject", "{ \"FileVersion\": 3 }\n");
	}
}

void CheckSample(benchmark::State& State)
{
	CheckBenchmark::Run(State, {CheckBenchmark::Program, "check", CheckBenchmark::Sample}, 1);
}
BENCHMARK(CheckSample)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100)->Repetitions(3);

void PythonDoingNothing(benchmark::State& State)
{
	CheckBenchmark::Run(State, {"python3", "-c", "pass"}, 0);
}
BENCHMARK(PythonDoingNothing)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100)->Repetitions(3);

/** Beside it, in the same run, the stream editor inserts a line into the same file; it neither checks nor flushes anything. */
void RepairLargeFile(benchmark::State& State)
{
	constexpr size_t Megabyte = 1'000'000;
	const size_t Size = static_cast<size_t>(State.range(0)) * Megabyte;
	double PeakMebibytes = 0.0;
	double EditorSeconds = 0.0;
	double Seconds = 0.0;
	for (auto Iteration : State)
	{
		const FTemporaryFolder Folder;
		CheckBenchmark::WriteLargeProject(Folder, Size);
		Folder.Write("Copy.ini", Folder.Read("Config/DefaultEngine.ini"));
		setenv("XDG_STATE_HOME", Folder.GetNative("State").c_str(), 1); // repairs are recorded
		sync(); // what was written here is not to be flushed by those who are measured
		const FMeasuredProcess Editor = MeasureProcess({"sed", "-i", "/^+Profiles=/a +Line", Folder.GetNative("Copy.ini").string()});
		const FMeasuredProcess Process = MeasureProcess({CheckBenchmark::Program, "check", Folder.GetNative().string(), "--repair"});
		if (Process.ExitStatus != 0 || Editor.ExitStatus != 0)
		{
			State.SkipWithError(("exit status " + std::to_string(Process.ExitStatus)).c_str());
			break;
		}
		State.SetIterationTime(Process.Seconds);
		Seconds += Process.Seconds;
		EditorSeconds += Editor.Seconds;
		PeakMebibytes = std::max(PeakMebibytes, Process.PeakMebibytes);
	}
	State.counters["sed_ms"] = EditorSeconds * 1000.0 / static_cast<double>(State.iterations());
	State.counters["times_sed"] = Seconds / EditorSeconds;
	State.counters["peak_MiB"] = PeakMebibytes;
	State.counters["times_size"] = PeakMebibytes * 1024 * 1024 / static_cast<double>(Size);
}
BENCHMARK(RepairLargeFile)->Arg(10)->Arg(200)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
