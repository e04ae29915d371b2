// Copyright Velmorant. All Rights Reserved.

#include "Math/Color.h"

#include "Math/UnrealMathUtility.h"
#include "Misc/Parse.h"

#include <cmath>

namespace Color
{
	float ToLinear(uint8 Channel)
	{
		const double Value = Channel / 255.0;
		return static_cast<float>(Value <= 0.04045 ? Value / 12.92 : std::pow((Value + 0.055) / 1.055, 2.4));
	}

	float ToSRGB(float Channel)
	{
		return Channel <= 0.0031308f ? Channel * 12.92f : std::pow(Channel, 1.f / 2.4f) * 1.055f - 0.055f;
	}

	uint8 Quantize(float Channel)
	{
		return static_cast<uint8>(FMath::RoundToInt(FMath::Clamp(Channel, 0.f, 1.f) * 255.f));
	}

	/** The channels of a text in any order. */
	template<typename ValueType>
	bool ReadChannels(const FString& Source, ValueType& R, ValueType& G, ValueType& B, ValueType& A)
	{
		const bool bAll = FParse::Value(*Source, TEXT("R="), R) && FParse::Value(*Source, TEXT("G="), G) && FParse::Value(*Source, TEXT("B="), B);
		FParse::Value(*Source, TEXT("A="), A);
		return bAll;
	}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(::Color::ToLinear(Color.R))
	, G(::Color::ToLinear(Color.G))
	, B(::Color::ToLinear(Color.B))
	, A(Color.A / 255.f)
{
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	if (!bSRGB)
	{
		return QuantizeRound();
	}
	const auto Channel = [](float Value) { return Color::Quantize(Color::ToSRGB(FMath::Clamp(Value, 0.f, 1.f))); };
	return FColor(Channel(R), Channel(G), Channel(B), Color::Quantize(A));
}

FColor FLinearColor::QuantizeRound() const
{
	return FColor(Color::Quantize(R), Color::Quantize(G), Color::Quantize(B), Color::Quantize(A));
}

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
}

bool FLinearColor::InitFromString(const FString& InSourceString)
{
	*this = FLinearColor(0.f, 0.f, 0.f, 1.f);
	return Color::ReadChannels(InSourceString, R, G, B, A);
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%d,G=%d,B=%d,A=%d)"), R, G, B, A);
}
