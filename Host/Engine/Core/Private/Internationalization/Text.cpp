// Copyright Velmorant. All Rights Reserved.

#include "Internationalization/Text.h"

#include "Internationalization/TextData.h"

#include <cmath>
#include <cstdio>

using UE::Text::Private::FTextData;

namespace TextPrivate
{
	const FString& EmptyString()
	{
		static const FString* Empty = new FString; // texts in static objects outlive this file's
		return *Empty;
	}

	uint64 Magnitude(int64 Value)
	{
		return Value < 0 ? 0ull - static_cast<uint64>(Value) : static_cast<uint64>(Value);
	}
}

FString UE::Text::Private::FormatInteger(bool bNegative, uint64 Magnitude)
{
	FString Digits = LexToString(Magnitude);
	for (int32 Index = Digits.Len() - 3; Index > 0; Index -= 3)
	{
		Digits.InsertAt(Index, ',');
	}
	return bNegative ? TEXT("-") + Digits : Digits;
}

FString UE::Text::Private::FormatReal(double Value)
{
	if (!std::isfinite(Value))
	{
		return std::isnan(Value) ? FString(TEXT("NaN")) : FString(Value < 0 ? TEXT("-\u221e") : TEXT("\u221e"));
	}
	char Buffer[340];
	const int32 Len = std::snprintf(Buffer, sizeof(Buffer), "%.3f", std::fabs(Value));
	FString Digits = FString::ConstructFromPtrSize(*FString(Buffer), Len);
	while (Digits.EndsWith(TEXT("0")))
	{
		Digits.LeftChopInline(1);
	}
	Digits.RemoveFromEnd(TEXT("."));
	int32 Point = Digits.Len();
	Digits.FindChar('.', Point);
	for (int32 Index = (Point == INDEX_NONE ? Digits.Len() : Point) - 3; Index > 0; Index -= 3)
	{
		Digits.InsertAt(Index, ',');
	}
	return std::signbit(Value) ? TEXT("-") + Digits : Digits;
}

FText::FText(FTextData&& InData)
	: Data(MakeShared<FTextData>(MoveTemp(InData)))
{
}

const FText& FText::GetEmpty()
{
	static const FText* Empty = new FText;
	return *Empty;
}

FText FText::FromString(const FString& String)
{
	return FromString(FString(String));
}

FText FText::FromString(FString&& String)
{
	return String.IsEmpty() ? FText() : FText(FTextData{MoveTemp(String), FString(), FString(), ETextFlag::InitializedFromString});
}

FText FText::FromString(FStringView String)
{
	return FromString(FString(String));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsCultureInvariant(FString&& String)
{
	return FText(FTextData{MoveTemp(String), FString(), FString(), ETextFlag::CultureInvariant});
}

FText FText::AsCultureInvariant(FText Text)
{
	return AsCultureInvariant(FString(Text.ToString()));
}

FText FText::AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, const TCHAR* String)
{
	return AsLocalizable_Advanced(Namespace, Key, FString(String));
}

FText FText::AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, FStringView String)
{
	return AsLocalizable_Advanced(Namespace, Key, FString(String));
}

FText FText::AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, FString&& String)
{
	// Without a key there is nothing to translate by.
	return Key.IsEmpty() ? FromString(MoveTemp(String)) : FText(FTextData{MoveTemp(String), Namespace.ToString(), Key.ToString(), 0});
}

FText FText::AsNumber(float Value)
{
	return MakeGenerated(UE::Text::Private::FormatReal(Value));
}

FText FText::AsNumber(double Value)
{
	return MakeGenerated(UE::Text::Private::FormatReal(Value));
}

FText FText::AsNumber(int64 Value)
{
	return MakeGenerated(UE::Text::Private::FormatInteger(Value < 0, TextPrivate::Magnitude(Value)));
}

FText FText::AsNumber(uint64 Value)
{
	return MakeGenerated(UE::Text::Private::FormatInteger(false, Value));
}

FText FText::AsNumber(int8 Value)
{
	return AsNumber(static_cast<int64>(Value));
}

FText FText::AsNumber(int16 Value)
{
	return AsNumber(static_cast<int64>(Value));
}

FText FText::AsNumber(int32 Value)
{
	return AsNumber(static_cast<int64>(Value));
}

FText FText::AsNumber(uint8 Value)
{
	return AsNumber(static_cast<uint64>(Value));
}

FText FText::AsNumber(uint16 Value)
{
	return AsNumber(static_cast<uint64>(Value));
}

FText FText::AsNumber(uint32 Value)
{
	return AsNumber(static_cast<uint64>(Value));
}

FText FText::MakeGenerated(FString&& Display)
{
	return FText(FTextData{MoveTemp(Display), FString(), FString(), ETextFlag::Transient});
}

const FString& FText::ToString() const
{
	return Data.IsValid() ? Data->Display : TextPrivate::EmptyString();
}

int32 FText::CompareTo(const FText& Other, ETextComparisonLevel::Type Level) const
{
	// Letters first, then case: "apple" and "Apple" stand side by side, before "Banana".
	const int32 Letters = ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase);
	if (Letters != 0 || Level == ETextComparisonLevel::Primary || Level == ETextComparisonLevel::Secondary)
	{
		return Letters;
	}
	return -ToString().Compare(Other.ToString(), ESearchCase::CaseSensitive); // lower case first
}

bool FText::IdenticalTo(const FText& Other) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	const FTextId Id = FTextInspector::GetTextId(*this);
	return !Id.IsEmpty() && Id == FTextInspector::GetTextId(Other) && ToString().Equals(Other.ToString());
}

bool FText::HasFlag(ETextFlag::Type Flag) const
{
	return Data.IsValid() && (Data->Flags & Flag) != 0;
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data.IsValid() && !Text.Data->Key.IsEmpty() ? TOptional<FString>(Text.Data->Namespace) : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data.IsValid() && !Text.Data->Key.IsEmpty() ? TOptional<FString>(Text.Data->Key) : TOptional<FString>();
}

FTextId FTextInspector::GetTextId(const FText& Text)
{
	return Text.Data.IsValid() ? FTextId(Text.Data->Namespace, Text.Data->Key) : FTextId();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return &Text.ToString();
}
