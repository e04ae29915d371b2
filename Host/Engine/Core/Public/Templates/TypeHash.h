// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <cstring>
#include <type_traits>

/** Mixes two hashes; the order matters. */
[[nodiscard]] constexpr uint32 HashCombine(uint32 A, uint32 B)
{
	return A ^ (B + 0x9e3779b9u + (A << 6) + (A >> 2));
}

namespace UE::Core::Private
{
	constexpr uint32 HashInteger(uint64 Value)
	{
		return static_cast<uint32>(Value) + static_cast<uint32>(Value >> 32) * 23u;
	}
}

[[nodiscard]] inline uint32 PointerHash(const void* Key)
{
	// The low bits say nothing: they are the alignment.
	return UE::Core::Private::HashInteger(reinterpret_cast<UPTRINT>(Key) >> 4);
}

template<typename T>
requires(std::is_integral_v<T> || std::is_enum_v<T>)
	[[nodiscard]] constexpr uint32 GetTypeHash(T Value)
{
	return UE::Core::Private::HashInteger(static_cast<uint64>(Value));
}

template<typename T>
requires(std::is_floating_point_v<T>)
	[[nodiscard]] uint32 GetTypeHash(T Value)
{
	const double Wide = Value == T(0) ? 0.0 : static_cast<double>(Value); // both zeros are equal, so they hash alike
	uint64 Bits = 0;
	std::memcpy(&Bits, &Wide, sizeof(Bits));
	return UE::Core::Private::HashInteger(Bits);
}

template<typename T>
requires(std::is_pointer_v<T>)
	[[nodiscard]] uint32 GetTypeHash(T Value)
{
	return PointerHash(reinterpret_cast<const void*>(Value));
}
