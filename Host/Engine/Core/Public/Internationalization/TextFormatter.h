// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "CoreTypes.h"
#include "Internationalization/Text.h"

namespace EFormatArgumentType
{
	enum Type
	{
		Int,
		UInt,
		Float,
		Double,
		Text
	};
}

/** What goes into a placeholder. */
class FFormatArgumentValue
{
public:
	FFormatArgumentValue() = default;
	FFormatArgumentValue(int32 Value)
		: FFormatArgumentValue(static_cast<int64>(Value))
	{
	}
	FFormatArgumentValue(uint32 Value)
		: FFormatArgumentValue(static_cast<uint64>(Value))
	{
	}
	FFormatArgumentValue(int64 Value)
		: Type(EFormatArgumentType::Int)
		, Integer(static_cast<uint64>(Value))
	{
	}
	FFormatArgumentValue(uint64 Value)
		: Type(EFormatArgumentType::UInt)
		, Integer(Value)
	{
	}
	FFormatArgumentValue(float Value)
		: Type(EFormatArgumentType::Float)
		, Real(Value)
	{
	}
	FFormatArgumentValue(double Value)
		: Type(EFormatArgumentType::Double)
		, Real(Value)
	{
	}
	FFormatArgumentValue(FText Value)
		: Type(EFormatArgumentType::Text)
		, TextValue(MoveTemp(Value))
	{
	}

	/** As it is displayed; numbers have digit groups. */
	FString ToFormattedString() const;

private:
	EFormatArgumentType::Type Type = EFormatArgumentType::Int;
	uint64 Integer = 0;
	double Real = 0.0;
	FText TextValue;
};

/** A text with placeholders. */
class FTextFormat
{
public:
	FTextFormat() = default;
	FTextFormat(const FText& InText)
		: Source(InText)
	{
	}

	const FString& GetSourceString() const { return Source.ToString(); }

private:
	FText Source;
};

template<typename... ArgTypes>
requires(std::is_constructible_v<FFormatArgumentValue, ArgTypes>&&...)
	FText FText::Format(FTextFormat Fmt, ArgTypes&&... Args)
{
	FFormatOrderedArguments Arguments;
	Arguments.Reserve(sizeof...(Args));
	(Arguments.Emplace(Forward<ArgTypes>(Args)), ...);
	return Format(MoveTemp(Fmt), Arguments);
}
