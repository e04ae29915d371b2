// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** Lets the enumerators of a scoped enum be combined as bits. */
#define ENUM_CLASS_FLAGS(Enum) \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(Lhs) | static_cast<std::underlying_type_t<Enum>>(Rhs)); \
	} \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(Lhs) & static_cast<std::underlying_type_t<Enum>>(Rhs)); \
	} \
	inline constexpr Enum operator^(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(Lhs) ^ static_cast<std::underlying_type_t<Enum>>(Rhs)); \
	} \
	inline constexpr Enum& operator|=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = Lhs | Rhs; \
	} \
	inline constexpr Enum& operator&=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = Lhs & Rhs; \
	} \
	inline constexpr Enum& operator^=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = Lhs ^ Rhs; \
	} \
	inline constexpr bool operator!(Enum Value) \
	{ \
		return !static_cast<std::underlying_type_t<Enum>>(Value); \
	} \
	inline constexpr Enum operator~(Enum Value) \
	{ \
		return static_cast<Enum>(~static_cast<std::underlying_type_t<Enum>>(Value)); \
	}

template<typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	return (static_cast<std::underlying_type_t<Enum>>(Flags) & static_cast<std::underlying_type_t<Enum>>(Contains)) != 0;
}
