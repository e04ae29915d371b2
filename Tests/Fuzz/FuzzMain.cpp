// Copyright Velmorant. All Rights Reserved.
// What libFuzzer calls. The first argument names the target.

#include "FuzzTarget.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace FuzzMain
{
	const FFuzzTarget* Target = nullptr;
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
	std::rotate(*Values + 1, *Values + 2, *Values + *Count);
	--*Count;
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
