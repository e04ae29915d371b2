// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <random>
#include <sstream>
#include <thread>

using namespace CollisionIni;

/** Bytes of all files below a folder, by their paths in it. */
using FContents = std::map<std::string, std::string>;

/**
 * Programs that write, stopped at each of their calls in turn. Whatever happens, a file is as it was before or as the program makes it, and
 * the next run makes good what the first one left.
 */
class Faults : public FProjectOnDisk
{
protected:
	/** Something that writes, on a project of its own. */
	struct FScenario
	{
		const char* Name;
		std::function<void()> Prepare; // the project, in a new folder
		std::vector<std::string> Arguments;
		std::vector<int> LaterStatus; // what the next run may end with
	};

	void MakeBroken() const
	{
		MakeProject();
		WriteIni("[Foreign]\nKey=1\n" + SectionLine + GlassLine + "; of others\n");
	}

	std::vector<FScenario> MakeScenarios() const
	{
		const auto MakeRepaired = [this] {
			MakeBroken();
			Check({"--repair"});
		};
		return {
			{"repair", [this] { MakeBroken(); }, {"check", GetProject(), "--repair"}, {0}},
			{"repair of a new file", [this] { MakeProject(); }, {"check", GetProject(), "--repair"}, {0}},
			{"undo", MakeRepaired, {"check", GetProject(), "--undo"}, {0, 1, 2}}, // it may have been done
		};
	}

	/** Folders have a slash at their ends, and no bytes. */
	FContents Look() const
	{
		FContents Contents;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative()))
		{
			const std::string Path = Entry.path().lexically_relative(Folder.GetNative()).string();
			Contents[Entry.is_directory() ? Path + "/" : Path] = Entry.is_directory() ? std::string() : ReadBytes(Entry.path());
		}
		return Contents;
	}

	void Restore(const FContents& Wanted) const
	{
		for (const auto& [Path, Bytes] : Look())
		{
			if (!Wanted.contains(Path))
			{
				std::filesystem::remove_all(Folder.GetNative(Path.ends_with('/') ? Path.substr(0, Path.size() - 1) : Path));
			}
		}
		for (const auto& [Path, Bytes] : Wanted)
		{
			if (!Path.ends_with('/') && Folder.Read(Path) != Bytes)
			{
				Folder.Write(Path, Bytes);
			}
		}
	}

	FProgramRun::FEnvironment GetFaultyEnvironment(const std::string& Kind, size_t At, const std::string& Log = {}) const
	{
		FProgramRun::FEnvironment Environment = GetEnvironment();
		const FProgramRun::FEnvironment Faulty = {{"LD_PRELOAD", VELMORANT_FAULTY_FILES}, {"VELMORANT_FAULT_FOLDER", Folder.GetNative().string()}, {"VELMORANT_FAULT_KIND", Kind},
			{"VELMORANT_FAULT_AT", std::to_string(At)}, {"VELMORANT_FAULT_LOG", Log}};
		Environment.insert(Environment.end(), Faulty.begin(), Faulty.end());
		return Environment;
	}

	/** The names of the calls that a run without faults makes. */
	std::vector<std::string> ListCalls(const FScenario& Scenario) const
	{
		const FTemporaryFolder Beside;
		const FProgramResult Result = FProgramRun::Run(Scenario.Arguments, GetFaultyEnvironment("", 0, Beside.GetNative("log").string()));
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		std::vector<std::string> Calls;
		std::istringstream Lines(Beside.Read("log"));
		for (std::string Line; std::getline(Lines, Line);)
		{
			Calls.push_back(Line);
		}
		return Calls;
	}

	static bool IsLeftover(const std::string& Path) { return std::filesystem::path(Path).filename().string().starts_with(".velmorant-"); }

	enum class EEnd
	{
		Own,
		Killed // may leave temporary files
	};

	/** Each file is whole: that of before, or the new one. */
	static void ExpectOldOrNew(const FContents& Found, const FContents& Before, const FContents& After, EEnd End)
	{
		const auto Has = [](const FContents& Contents, const std::string& Path, const std::string& Bytes) {
			const auto Place = Contents.find(Path);
			return Place != Contents.end() && Place->second == Bytes;
		};
		for (const auto& [Path, Bytes] : Found)
		{
			const bool bLeftover = IsLeftover(Path) && End == EEnd::Killed;
			EXPECT_TRUE(bLeftover || Has(Before, Path, Bytes) || Has(After, Path, Bytes)) << Path << " holds " << Bytes.size() << " bytes:\n"
																						  << Bytes.substr(0, 2000);
		}
		for (const auto& [Path, Bytes] : Before)
		{
			EXPECT_TRUE(Found.contains(Path) || !After.contains(Path)) << Path << " is gone";
		}
	}

	/** The paths that only one of them has, or whose bytes differ. How to take a repair back may be lost: that is noted behind the repair. */
	static std::string TellDifference(const FContents& Left, const FContents& Right)
	{
		std::string Paths;
		for (const auto& [One, Other] : {std::pair(&Left, &Right), std::pair(&Right, &Left)})
		{
			for (const auto& [Path, Bytes] : *One)
			{
				const auto Place = Other->find(Path);
				const bool bDiffers = Place == Other->end() || Place->second != Bytes;
				Paths += bDiffers && !Path.starts_with("UserState/") ? Path + " (" + std::to_string(Bytes.size()) + " bytes) " : std::string();
			}
		}
		return Paths;
	}

	/** The next run finds nothing in its way, and leaves nothing lying about. */
	void ExpectMadeGood(const FScenario& Scenario, const FContents& Before, const FContents& After) const
	{
		const FProgramResult Later = FProgramRun::Run(Scenario.Arguments, GetEnvironment());
		EXPECT_NE(std::find(Scenario.LaterStatus.begin(), Scenario.LaterStatus.end(), Later.ExitStatus), Scenario.LaterStatus.end()) << Later.ExitStatus << Later.Output << Later.Errors;
		const FContents Found = Look();
		ExpectOldOrNew(Found, Before, After, EEnd::Own);
		EXPECT_TRUE(TellDifference(Found, After).empty() || Scenario.LaterStatus.size() > 1) << "the next run ends with something else: " << TellDifference(Found, After);
	}

	void ExpectSound(const FScenario& Scenario, const FProgramResult& Result, const FContents& Before, const FContents& After, const std::string& Kind) const
	{
		const bool bKilled = Kind == "kill" || Kind.starts_with("power");
		const FContents Found = Look();
		ExpectOldOrNew(Found, Before, After, bKilled ? EEnd::Killed : EEnd::Own);
		EXPECT_EQ(Result.ExitStatus == -1, bKilled) << "the fault did not come";
		if (Result.ExitStatus == 0)
		{
			EXPECT_EQ(TellDifference(Found, After), "") << "told as done, and it is not";
		}
		else if (!bKilled)
		{
			EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
			EXPECT_NE(Result.Errors, "");
		}
		ExpectMadeGood(Scenario, Before, After);
	}

	static std::vector<std::string> GetKinds(const std::string& Call)
	{
		std::vector<std::string> Kinds = {"power", "powerAndNames"};
		if (Call != "end")
		{
			Kinds.push_back("kill");
			for (const int Error : {EIO, ENOSPC, EACCES})
			{
				Kinds.push_back(std::to_string(Error));
			}
			if (Call != "rename" && Call != "unlink" && Call != "mkdir") // which are not interrupted
			{
				Kinds.push_back(std::to_string(EINTR));
			}
		}
		if (Call == "write")
		{
			Kinds.push_back("short");
		}
		return Kinds;
	}

	/** By the environment, for longer runs than those of every day. */
	static long GetNumber(const char* Name, long Usual)
	{
		const char* const Value = std::getenv(Name);
		return Value != nullptr ? std::atol(Value) : Usual;
	}
};

TEST_F(Faults, OfEveryCallLeaveTheOldOrTheNewFile)
{
	const long Stride = GetNumber("VELMORANT_FAULT_STRIDE", 13);
	long NumRuns = 0;
	for (const FScenario& Scenario : MakeScenarios())
	{
		SCOPED_TRACE(Scenario.Name);
		Restore({});
		Scenario.Prepare();
		const FContents Before = Look();
		const std::vector<std::string> Calls = ListCalls(Scenario);
		const FContents After = Look();
		ASSERT_GT(Calls.size(), 5u);
		ASSERT_NE(Before, After);
		for (size_t At = 1; At <= Calls.size(); ++At)
		{
			for (const std::string& Kind : GetKinds(Calls[At - 1]))
			{
				if (NumRuns++ % Stride != 0)
				{
					continue;
				}
				SCOPED_TRACE(Calls[At - 1] + ", call " + std::to_string(At) + ": " + Kind);
				Restore(Before);
				const FProgramResult Result = FProgramRun::Run(Scenario.Arguments, GetFaultyEnvironment(Kind, At));
				if (Calls[At - 1] == "end")
				{
					EXPECT_TRUE(Look() == After) << "what was told as done is not on disk";
				}
				ExpectSound(Scenario, Result, Before, After, Kind);
				if (HasFailure())
				{
					return;
				}
			}
		}
	}
	RecordProperty("Runs", std::to_string(NumRuns / Stride));
}

TEST_F(Faults, KillsAtAnyTimeLeaveTheOldOrTheNewFile)
{
	const long NumKills = GetNumber("VELMORANT_KILLS", 40);
	const std::vector<FScenario> Scenarios = MakeScenarios();
	std::mt19937 Random(20260101);
	long NumInTime = 0;
	for (const FScenario& Scenario : Scenarios)
	{
		SCOPED_TRACE(Scenario.Name);
		Restore({});
		Scenario.Prepare();
		const FContents Before = Look();
		const auto Start = std::chrono::steady_clock::now();
		EXPECT_EQ(FProgramRun::Run(Scenario.Arguments, GetEnvironment()).ExitStatus, 0);
		const auto Whole = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - Start);
		const FContents After = Look();
		std::uniform_int_distribution<long> Delay(0, static_cast<long>(Whole.count()));
		for (long Kill = 0; Kill < NumKills / static_cast<long>(Scenarios.size()) && !HasFailure(); ++Kill)
		{
			Restore(Before);
			FProgramRun Run(Scenario.Arguments, GetEnvironment());
			std::this_thread::sleep_for(std::chrono::microseconds(Delay(Random)));
			Run.Kill();
			NumInTime += Run.Wait().ExitStatus == -1 ? 1 : 0;
			ExpectOldOrNew(Look(), Before, After, EEnd::Killed);
			ExpectMadeGood(Scenario, Before, After);
		}
	}
	EXPECT_GT(NumInTime, NumKills / 4) << "most came when all was over";
	RecordProperty("KilledInTime", std::to_string(NumInTime));
}
