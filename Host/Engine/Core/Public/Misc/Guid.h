// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Templates/TypeHash.h"

enum class EGuidFormats
{
	Digits, // 32 hexadecimal digits
};

/** A globally unique identifier. The default constructor gives the invalid one, all zeros. */
struct FGuid
{
	uint32 A = 0;
	uint32 B = 0;
	uint32 C = 0;
	uint32 D = 0;

	constexpr FGuid() = default;
	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}

	static FGuid NewGuid();

	constexpr bool IsValid() const { return (A | B | C | D) != 0; }
	constexpr void Invalidate() { *this = FGuid(); }
	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;

	friend constexpr bool operator==(const FGuid& X, const FGuid& Y) { return X.A == Y.A && X.B == Y.B && X.C == Y.C && X.D == Y.D; }
	friend constexpr bool operator<(const FGuid& X, const FGuid& Y)
	{
		if (X.A != Y.A)
		{
			return X.A < Y.A;
		}
		if (X.B != Y.B)
		{
			return X.B < Y.B;
		}
		return X.C != Y.C ? X.C < Y.C : X.D < Y.D;
	}
	friend uint32 GetTypeHash(const FGuid& Guid) { return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D)); }
};
