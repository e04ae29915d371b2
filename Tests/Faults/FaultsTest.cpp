// Copyright Velmorant. All Rights Reserved.

#include "FaultScenarios.h"
#include "FolderContents.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <thread>

namespace FaultsTest
{
	/** By the environment, for longer runs than those of every day. */
	long GetNumber(const char* Name, long Usual)
	{
		const char* const Value = std::getenv(Name);
		return Value != nullptr ? std::atol(Value) : Usual;
	}

	std::vector<FFaultScenario> FindScenarios(bool bKills)
	{
		std::vector<FFaultScenario> Scenarios = FaultScenarios::MakeAll();
		std::erase_if(Scenarios, [bKills](const FFaultScenario& Scenario) { return bKills && !Scenario.bKills; });
		return Scenarios;
	}

	std::string GetName(const testing::TestParamInfo<FFaultScenario>& Info)
	{
		return Info.param.Name;
	}

	/** The ways in which a call can go wrong. */
	std::vector<std::string> GetKinds(const FFileCall& Call)
	{
		const std::string Read = std::to_string(EIO);
		const std::string Denied = std::to_string(EACCES);
		if (Call.IsOfReading())
		{
			return Call.Name == "read" ? std::vector<std::string>{Read, Read + "+", std::to_string(EINTR)} : std::vector<std::string>{Read, Denied, Denied + "+"};
		}
		std::vector<std::string> Kinds = {"power", "powerAndNames"};
		if (Call.Name != "end")
		{
			Kinds.insert(Kinds.end(), {"kill", Read, Denied, std::to_string(ENOSPC)});
		}
		if (Call.Name == "write")
		{
			Kinds.push_back("short");
		}
		const bool bInterruptible = Call.Name == "open" || Call.Name == "write" || Call.Name == "fsync" || Call.Name == "close" || Call.Name == "flock" || Call.Name == "fchmod";
		if (bInterruptible)
		{
			Kinds.push_back(std::to_string(EINTR));
		}
		return Kinds;
	}
}

using namespace FaultsTest;

/**
 * Programs that write, stopped at each of their calls in turn. Whatever happens, a file is as it was before or as the program makes it, and
 * the next run makes good what the first one left.
 */
class Faults : public FFaultProject, public testing::WithParamInterface<FFaultScenario>
{
protected:
	/** In a new folder. */
	FFaultlessRun RunFaultless() const
	{
		GetParam().Prepare(*this);
		const FContents Before = FolderContents::Look(Folder);
		const FTemporaryFolder Log;
		const FProgramResult Result = Run({{"VELMORANT_FAULT_LOG", Log.GetNative().string()}});
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		FFaultlessRun Faultless(Folder, Log, Before);
		FProgramRun::Run(GetArguments(), GetEnvironment());
		Faultless.AddSecond(FolderContents::Look(Folder));
		return Faultless;
	}

	std::vector<std::string> GetArguments() const
	{
		std::vector<std::string> Arguments = GetParam().Arguments;
		for (std::string& Argument : Arguments)
		{
			Argument = Argument.starts_with("./") ? Folder.GetNative(Argument.substr(2)).string() : Argument;
		}
		return Arguments;
	}

	/** With the library that makes faults. */
	FProgramResult Run(const FProgramRun::FEnvironment& Fault) const
	{
		FProgramRun::FEnvironment Environment = GetEnvironment();
		Environment.insert(Environment.end(), {{"LD_PRELOAD", VELMORANT_FAULTY_FILES}, {"VELMORANT_FAULT_FOLDER", Folder.GetNative().string()}});
		Environment.insert(Environment.end(), Fault.begin(), Fault.end());
		return FProgramRun::Run(GetArguments(), Environment);
	}

	/** The next run finds nothing in its way, and leaves nothing lying about. */
	void ExpectMadeGood(const FFaultlessRun& Faultless) const
	{
		const std::vector<int>& Expected = GetParam().LaterStatus;
		const FProgramResult Later = FProgramRun::Run(GetArguments(), GetEnvironment());
		EXPECT_NE(std::find(Expected.begin(), Expected.end(), Later.ExitStatus), Expected.end()) << "the next run: " << Later.ExitStatus << Later.Output << Later.Errors;
		const FContents Found = FolderContents::Look(Folder);
		EXPECT_EQ(Faultless.FindForeign(Found, false), "") << "after the next run";
		// The user's own settings need not repeat what the project's say by now.
		const std::vector<std::string> Ignored = {"UserState/", "Project/Saved/"};
		const bool bRefused = GetParam().bMayRefuse && Later.ExitStatus != 0;
		EXPECT_TRUE(bRefused || FolderContents::TellDifference(Found, Faultless.After, Ignored).empty()) << "the next run ends with something else: " << FolderContents::TellDifference(Found, Faultless.After, Ignored);
	}

	void ExpectTold(const FProgramResult& Result, const FFileCall& Call) const
	{
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
		EXPECT_NE(Result.Errors, "");
		if (Call.IsOfReading())
		{
			const std::string Name = std::filesystem::path(Call.Path).filename().string();
			EXPECT_NE(Result.Errors.find(Name), std::string::npos) << "the file is not named: " << Result.Errors;
		}
	}

	void ExpectSound(const FProgramResult& Result, const FFaultlessRun& Faultless, const FFileCall& Call, const std::string& Kind) const
	{
		const bool bKilled = Kind == "kill" || Kind.starts_with("power");
		const FContents Found = FolderContents::Look(Folder);
		const bool bKeepsStage = Call.Path.find("/.velmorant-install") != std::string::npos; // which cannot be taken away, either
		EXPECT_EQ(Faultless.FindForeign(Found, bKilled || bKeepsStage), "");
		EXPECT_EQ(Result.ExitStatus == -1, bKilled) << "the fault did not come";
		if (Result.ExitStatus == 0 || Call.Name == "end") // but for how to take a repair back, which is noted behind it
		{
			EXPECT_EQ(FolderContents::TellDifference(Found, Faultless.After, {"UserState/"}), "") << "told as done, and it is not";
		}
		else if (!bKilled)
		{
			ExpectTold(Result, Call);
		}
		if (Call.Name == "fsync" && Kind == std::to_string(EIO))
		{
			EXPECT_NE(Result.Errors, "") << "a disk that fails is not told";
			EXPECT_TRUE(Result.ExitStatus == 3 || Call.Path.starts_with("UserState")) << Result.ExitStatus << ": how to take a repair back may be lost";
		}
		ExpectMadeGood(Faultless);
	}
};

INSTANTIATE_TEST_SUITE_P(, Faults, testing::ValuesIn(FindScenarios(false)), GetName);

TEST_P(Faults, OfEveryCallLeaveTheOldOrTheNewFile)
{
	const long Stride = GetNumber("VELMORANT_FAULT_STRIDE", 97);
	const FFaultlessRun Faultless = RunFaultless();
	ASSERT_GT(Faultless.Calls.size(), 5u);
	ASSERT_TRUE(std::any_of(Faultless.Calls.begin(), Faultless.Calls.end(), [](const FFileCall& Call) { return Call.Name == "rename" || Call.Name == "unlink"; }));
	long NumPossible = 0;
	long NumRuns = 0;
	long NumFailures = 0;
	for (size_t At = 1; At <= Faultless.Calls.size(); ++At)
	{
		const FFileCall& Call = Faultless.Calls[At - 1];
		for (const std::string& Kind : GetKinds(Call))
		{
			if (NumPossible++ % Stride != 0)
			{
				continue;
			}
			SCOPED_TRACE(Call.Name + " " + Call.Path + ", call " + std::to_string(At) + ": " + Kind);
			++NumRuns;
			FolderContents::Restore(Folder, Faultless.Before);
			const int NumParts = testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
			ExpectSound(Run({{"VELMORANT_FAULT_KIND", Kind}, {"VELMORANT_FAULT_AT", std::to_string(At)}}), Faultless, Call, Kind);
			NumFailures += testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count() > NumParts ? 1 : 0;
			ASSERT_LT(NumFailures, GetNumber("VELMORANT_FAULT_FAILURES", 1));
		}
	}
	std::cout << GetParam().Name << ": " << NumRuns << " of " << NumPossible << " faults at " << Faultless.Calls.size() << " calls, " << NumFailures << " failures\n";
}

/** The same, ended at any time. */
class Kills : public Faults
{
};

INSTANTIATE_TEST_SUITE_P(, Kills, testing::ValuesIn(FindScenarios(true)), GetName);

TEST_P(Kills, AtAnyTimeLeaveTheOldOrTheNewFile)
{
	const long NumKills = GetNumber("VELMORANT_KILLS", 210) / static_cast<long>(FindScenarios(true).size());
	const FFaultlessRun Faultless = RunFaultless();
	FolderContents::Restore(Folder, Faultless.Before);
	const auto Measure = [](const auto& Act) {
		const auto Start = std::chrono::steady_clock::now();
		Act();
		return static_cast<long>(std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - Start).count());
	};
	long Whole = Measure([this] { FProgramRun::Run(GetArguments(), GetEnvironment()); });
	static std::mt19937 Random(static_cast<unsigned>(GetNumber("VELMORANT_FAULT_SEED", 20260101))); // other times when the test is repeated
	long NumInTime = 0;
	for (long Kill = 0; Kill < NumKills && !HasFailure(); ++Kill)
	{
		FolderContents::Restore(Folder, Faultless.Before);
		FProgramRun Run(GetArguments(), GetEnvironment());
		std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution<long>(0, Whole)(Random)));
		Run.Kill();
		NumInTime += Run.Wait().ExitStatus == -1 ? 1 : 0;
		EXPECT_EQ(Faultless.FindForeign(FolderContents::Look(Folder), true), "");
		Whole = Measure([&] { ExpectMadeGood(Faultless); }); // other programs come and go
	}
	EXPECT_GT(NumInTime, NumKills / 4) << "most came when all was over";
	std::cout << GetParam().Name << ": " << NumKills << " kills, " << NumInTime << " in time\n";
}
