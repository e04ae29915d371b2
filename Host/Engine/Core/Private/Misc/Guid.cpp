// Copyright Velmorant. All Rights Reserved.

#include "Misc/Guid.h"

#include <random>

FGuid FGuid::NewGuid()
{
	std::random_device Random;
	// Version 4 (random), variant 1.
	return FGuid(Random(), (Random() & 0xffff0fffu) | 0x4000u, (Random() & 0x3fffffffu) | 0x80000000u, Random());
}

FString FGuid::ToString(EGuidFormats) const
{
	return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
}
