// Copyright Velmorant. All Rights Reserved.

#include "MeasuredProcess.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <string>

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

	/** A project whose DefaultEngine.ini has profile lines in the middle of ten megabytes of other settings. */
	void WriteLargeProject(const FTemporaryFolder& Folder)
	{
		std::string Settings;
		const auto AddSections = [&Settings](const char* Name, size_t UntilSize) {
			for (int Section = 0; Settings.size() < UntilSize; ++Section)
			{
				Settings += "[/Script/Plugin" + std::string(Name) + ".Settings" + std::to_string(Section) + "]\n";
				for (int Key = 0; Key < 100; ++Key)
				{
					Settings += "+Entries=(Name=\"Entry " + std::to_string(Key) + "\",Value=" + std::to_string(Section * Key) + ",bEnabled=True)\n";
				}
			}
		};
		AddSections("Before", 5'000'000);
		Settings += "[/Script/Engine.CollisionProfile]\n+Profiles=(Name=\"Glass\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"WorldStatic\")\n";
		AddSections("After", 10'000'000);
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

void RepairTenMegabytes(benchmark::State& State)
{
	double PeakMebibytes = 0.0;
	for (auto Iteration : State)
	{
		const FTemporaryFolder Folder;
		CheckBenchmark::WriteLargeProject(Folder);
		setenv("XDG_STATE_HOME", Folder.GetNative("State").c_str(), 1); // repairs are recorded
		const FMeasuredProcess Process = MeasureProcess({CheckBenchmark::Program, "check", Folder.GetNative().string(), "--repair"});
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
BENCHMARK(RepairTenMegabytes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
