// Copyright Velmorant. All Rights Reserved.
// What libFuzzer calls. The first argument names the target.

#include "FuzzTarget.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace FuzzMain
{
	const FFuzzTarget* Target = nullptr;

	/**
	 * What the caller says comes later and counts more. Inputs of a few screens' length show what longer ones would, and names of new
	 * functions, leaks after each input and the choice of inputs by their rarity take more time than the inputs themselves.
	 */
	const char* const Defaults[] = {"-max_len=4096", "-timeout=10", "-rss_limit_mb=4096", "-print_final_stats=1", "-print_funcs=0", "-detect_leaks=0", "-entropic=0"};

	/** The arguments for libFuzzer: the program, the defaults, and the caller's without the target. */
	std::vector<char*> Complete(int Count, char** Values)
	{
		std::vector<char*> Result = {Values[0]};
		for (const char* Default : Defaults)
		{
			Result.push_back(const_cast<char*>(Default)); // nobody writes to them
		}
		Result.insert(Result.end(), Values + 2, Values + Count);
		return Result;
	}
}

/** Who took a piece of memory that an input shows to be misused is seen in the program's own frames. */
extern "C" const char* __asan_default_options()
{
	return "malloc_context_size=6:quarantine_size_mb=32:detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int* Count, char*** Values)
{
	FuzzMain::Target = *Count > 1 ? FuzzTargets::Find((*Values)[1]) : nullptr;
	if (FuzzMain::Target == nullptr)
	{
		std::fprintf(stderr, "usage: VelmorantFuzz TARGET [libFuzzer's own arguments]; the targets are:\n");
		for (const FFuzzTarget& Each : FuzzTargets::GetAll())
		{
			std::fprintf(stderr, "  %s\n", Each.Name);
		}
		std::exit(2);
	}
	static std::vector<char*> Arguments = FuzzMain::Complete(*Count, *Values);
	*Count = static_cast<int>(Arguments.size());
	Arguments.push_back(nullptr);
	*Values = Arguments.data();
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Size)
{
	try
	{
		FuzzMain::Target->Check(std::string_view(reinterpret_cast<const char*>(Bytes), Size));
	}
	catch (const FBrokenPromise& Broken)
	{
		std::fprintf(stderr, "A promise was broken: %s\n", Broken.what());
		std::abort();
	}
	return 0;
}
