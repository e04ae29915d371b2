// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "ProjectWrapper.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

#include <benchmark/benchmark.h>
#include <string>

namespace ServiceDataBenchmark
{
	constexpr int64 UnitsPerGroup = 100;

	/** One user with one project, of unit groups with a hundred units each, until the file has that many bytes. */
	std::string MakeService(int64 NumBytes)
	{
		std::string Json = R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
	"projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", "unitGroups": [)";
		for (int64 Group = 0; static_cast<int64>(Json.size()) < NumBytes; ++Group)
		{
			Json += std::string(Group == 0 ? "" : ",") + "\n\t\t{\"keyCode\": \"HT-G" + std::to_string(Group) + "\", \"name\": \"Torre Alba " + std::to_string(Group) + "\", \"units\": [";
			for (int64 Unit = Group * UnitsPerGroup; Unit < (Group + 1) * UnitsPerGroup; ++Unit)
			{
				const std::string Number = std::to_string(Unit);
				Json += std::string(Unit % UnitsPerGroup == 0 ? "" : ",") + "\n\t\t\t{\"keyCode\": \"HT-U" + Number + "\", \"name\": \"Apartment " + Number + "\", \"unitID\": " + Number + "}";
			}
			Json += "]}";
		}
		return Json + "]}]}\n";
	}

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("MB")->Arg(4)->Arg(8)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

/** Signs in against a data file of State.range(0) million bytes that was edited since the last request: from the request until it is answered. */
void SignInToLargeService(benchmark::State& State)
{
	std::string Service = ServiceDataBenchmark::MakeService(State.range(0) * 1000000);
	FBenchmarkEditor Editor(Service);
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Service.back() = Service.back() == ' ' ? '\n' : ' ';
		Editor.WriteService(Service);
		State.ResumeTiming();
		Editor.SignIn(TEXT("ada"), TEXT("sesame-77"));
	}
	if (!UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser()->HasValidToken())
	{
		State.SkipWithError("not signed in");
	}
}
BENCHMARK(SignInToLargeService)->Apply(ServiceDataBenchmark::Arguments);

/** Asks for all data of the project in such a file, which stays as it is: from the request until the project's unit groups are there. */
void RequestLargeProject(benchmark::State& State)
{
	FBenchmarkEditor Editor(ServiceDataBenchmark::MakeService(State.range(0) * 1000000));
	Editor.SignIn(TEXT("ada"), TEXT("sesame-77"));
	Editor.SelectProject(TEXT("HT"));
	UVelmorantDeveloperUser* User = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true);
	const FProject Project = User->GetEditorUserProjects()[0];
	for (auto Iteration : State)
	{
		User->SetSelectedProject(Project, true);
		Editor.Tick();
	}
	if (User->GetProjectRequestManager()->GetProjectWrapper()->GetUnitGroupListData().IsEmpty())
	{
		State.SkipWithError("the project has no data");
	}
}
BENCHMARK(RequestLargeProject)->Apply(ServiceDataBenchmark::Arguments);
