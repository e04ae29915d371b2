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

	EFormatArgumentType::Type GetType() const { return Type; }
	const FText& GetTextValue() const { return TextValue; }
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
	static FTextFormat FromString(const FString& InString) { return FTextFormat(FText::FromString(InString)); }
	static FTextFormat FromString(FString&& InString) { return FTextFormat(FText::FromString(MoveTemp(InString))); }

	const FText& GetSourceText() const { return Source; }
	const FString& GetSourceString() const { return Source.ToString(); }
	/** The names between braces, each once, in the order in which they appear. */
	void GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const;

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

template<typename... ArgTypes>
requires(std::is_constructible_v<FFormatArgumentValue, ArgTypes>&&...)
	FText FText::FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args)
{
	return Format(MoveTemp(Fmt), Forward<ArgTypes>(Args)...);
}

namespace UE::Text::Private
{
	inline void AddNamedArguments(FFormatNamedArguments&)
	{
	}

	template<typename NameType, typename ValueType, typename... Rest>
	void AddNamedArguments(FFormatNamedArguments& Out, NameType&& Name, ValueType&& Value, Rest&&... Others)
	{
		Out.Add(FString(Forward<NameType>(Name)), FFormatArgumentValue(Forward<ValueType>(Value)));
		AddNamedArguments(Out, Forward<Rest>(Others)...);
	}
}

template<typename... ArgTypes>
FText FText::FormatNamed(FTextFormat Fmt, ArgTypes&&... Args)
{
	static_assert(sizeof...(Args) % 2 == 0, "Names and values come in pairs.");
	FFormatNamedArguments Arguments;
	UE::Text::Private::AddNamedArguments(Arguments, Forward<ArgTypes>(Args)...);
	return Format(MoveTemp(Fmt), Arguments);
}
