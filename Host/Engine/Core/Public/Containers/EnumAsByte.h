// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** A plain enum stored in one byte. Enum classes say their own size and are used as they are. */
template<class TEnum>
class TEnumAsByte
{
	static_assert(std::is_enum_v<TEnum>, "TEnumAsByte is for enums.");
	static_assert(std::is_convertible_v<TEnum, int>, "TEnumAsByte is not for enum classes; give the enum class a uint8 base and use it directly.");

public:
	using EnumType = TEnum;

	TEnumAsByte() = default;
	TEnumAsByte(TEnum InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit TEnumAsByte(int32 InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{
	}

	operator TEnum() const { return static_cast<TEnum>(Value); }

	bool operator==(TEnum Other) const { return static_cast<TEnum>(Value) == Other; }
	bool operator==(TEnumAsByte Other) const { return Value == Other.Value; }

	friend uint32 GetTypeHash(TEnumAsByte Enum) { return Enum.Value; }

private:
	uint8 Value;
};
