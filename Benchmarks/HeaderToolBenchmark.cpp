// Copyright Velmorant. All Rights Reserved.

#include "MeasuredProcess.h"
#include "TemporaryFolder.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <vector>

/** The header tool over every reflected header of the build, one run for each module, writing to a fresh folder. */
void ReflectAllHeaders(benchmark::State& State)
{
	std::vector<std::filesystem::path> Manifests;
	for (const auto& Entry : std::filesystem::directory_iterator(VELMORANT_GENERATED_DIR))
	{
		if (Entry.path().extension() == ".manifest")
		{
			Manifests.push_back(Entry.path());
		}
	}

	for (auto Iteration : State)
	{
		const FTemporaryFolder Folder;
		double Seconds = 0.0;
		for (const std::filesystem::path& Manifest : Manifests)
		{
			std::vector<std::string> Arguments = {VELMORANT_BINARY_DIR "/VelmorantHeaderTool", "--module", Manifest.stem().string(), "--output", Folder.GetNative(Manifest.stem().string()).string(), "--manifest", Manifest.string()};
			for (const std::filesystem::path& Reference : Manifests)
			{
				if (Reference != Manifest)
				{
					Arguments.insert(Arguments.end(), {"--reference", Reference.string()});
				}
			}
			const FMeasuredProcess Process = MeasureProcess(Arguments);
			if (Process.ExitStatus != 0)
			{
				State.SkipWithError(("the header tool failed on " + Manifest.string()).c_str());
				return;
			}
			Seconds += Process.Seconds;
		}
		State.SetIterationTime(Seconds);
	}
	State.counters["modules"] = static_cast<double>(Manifests.size());
}
BENCHMARK(ReflectAllHeaders)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

/** Over one class with so many properties and functions. */
void ReflectLargeClass(benchmark::State& State)
{
	const FTemporaryFolder Folder;
	std::string Header = "#pragma once\n#include \"Large.generated.h\"\nUCLASS()\nclass ULarge : public UObject\n{\n\tGENERATED_BODY()\npublic:\n";
	for (int64_t Index = 0; Index < State.range(0); ++Index)
	{
		const std::string Number = std::to_string(Index);
		Header += "\tUPROPERTY(EditAnywhere, Category = \"Large\")\n\tint32 Property" + Number + " = 0;\n";
		Header += "\tUFUNCTION(BlueprintCallable, Category = \"Large\")\n\tvoid Function" + Number + "(int32 First, const FString& Second);\n";
	}
	Folder.Write("Large.h", Header + "};\n");
	Folder.Write("Large.manifest", "module Large\nheader Large.h " + Folder.GetNative("Large.h").string() + "\n");
	const std::vector<std::string> Arguments = {VELMORANT_BINARY_DIR "/VelmorantHeaderTool", "--module", "Large", "--output", Folder.GetNative("Out").string(), "--manifest", Folder.GetNative("Large.manifest").string()};
	for (auto Iteration : State)
	{
		const FMeasuredProcess Process = MeasureProcess(Arguments);
		if (Process.ExitStatus != 0)
		{
			State.SkipWithError("the header tool failed on a large class");
			return;
		}
		State.SetIterationTime(Process.Seconds);
		State.counters["MiB"] = Process.PeakMebibytes;
	}
}
BENCHMARK(ReflectLargeClass)->Arg(16'000)->Arg(32'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
