// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Templates/TypeHash.h"

/** A colour in linear light; 1 is full, more is allowed. The default constructor leaves the values open. */
struct FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	FLinearColor() {} // NOLINT: uninitialised, as in the engine
	/** Black without opacity. */
	explicit constexpr FLinearColor(EForceInit)
		: FLinearColor(0.f, 0.f, 0.f, 0.f)
	{
	}
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}
	/** From sRGB to linear light; opacity is scaled only. */
	FLinearColor(const FColor& Color);

	/** Clamped to [0, 1] and rounded; with bSRGB the channels, not the opacity, go back to sRGB. */
	FColor ToFColor(bool bSRGB) const;
	/** Without any curve. */
	FColor QuantizeRound() const;

	constexpr FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }

	constexpr FLinearColor operator+(const FLinearColor& C) const { return FLinearColor(R + C.R, G + C.G, B + C.B, A + C.A); }
	constexpr FLinearColor operator-(const FLinearColor& C) const { return FLinearColor(R - C.R, G - C.G, B - C.B, A - C.A); }
	constexpr FLinearColor operator*(const FLinearColor& C) const { return FLinearColor(R * C.R, G * C.G, B * C.B, A * C.A); }
	constexpr FLinearColor operator*(float Scale) const { return FLinearColor(R * Scale, G * Scale, B * Scale, A * Scale); }

	/** Exact. */
	friend constexpr bool operator==(const FLinearColor& C, const FLinearColor& D) { return C.R == D.R && C.G == D.G && C.B == D.B && C.A == D.A; }
	constexpr bool Equals(const FLinearColor& C, float Tolerance = 1.e-4f) const
	{
		const auto Near = [Tolerance](float X, float Y) { return (X < Y ? Y - X : X - Y) < Tolerance; };
		return Near(R, C.R) && Near(G, C.G) && Near(B, C.B) && Near(A, C.A);
	}

	/** "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" */
	FString ToString() const;
	/** Starts from opaque black. @return whether R, G and B were there; A is optional. */
	bool InitFromString(const FString& InSourceString);

	friend uint32 GetTypeHash(const FLinearColor& C)
	{
		return HashCombine(HashCombine(::GetTypeHash(C.R), ::GetTypeHash(C.G)), HashCombine(::GetTypeHash(C.B), ::GetTypeHash(C.A)));
	}
};

/** A colour with 8 bits a channel, sRGB unless said otherwise. In memory B, G, R, A. The default constructor leaves the values open. */
struct FColor
{
	uint8 B;
	uint8 G;
	uint8 R;
	uint8 A;

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;
	static const FColor Cyan;
	static const FColor Magenta;
	static const FColor Orange;
	static const FColor Purple;
	static const FColor Turquoise;
	static const FColor Silver;
	static const FColor Emerald;

	FColor() {} // NOLINT: uninitialised, as in the engine
	/** Black without opacity. */
	explicit constexpr FColor(EForceInit)
		: FColor(0, 0, 0, 0)
	{
	}
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}
	/** 0xAARRGGBB */
	explicit constexpr FColor(uint32 InColor)
		: FColor(static_cast<uint8>(InColor >> 16), static_cast<uint8>(InColor >> 8), static_cast<uint8>(InColor), static_cast<uint8>(InColor >> 24))
	{
	}

	friend constexpr bool operator==(const FColor& C, const FColor& D) { return C.R == D.R && C.G == D.G && C.B == D.B && C.A == D.A; }

	constexpr uint32 ToPackedARGB() const { return (uint32(A) << 24) | (uint32(R) << 16) | (uint32(G) << 8) | uint32(B); }

	/** "RRGGBBAA" */
	FString ToHex() const;

	/** "(R=255,G=128,B=0,A=255)" */
	FString ToString() const;

	friend uint32 GetTypeHash(const FColor& C) { return C.ToPackedARGB(); }
};

// Constant-initialised: static objects of other files may use them at any time.
inline constexpr FLinearColor FLinearColor::White(1.f, 1.f, 1.f);
inline constexpr FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
inline constexpr FLinearColor FLinearColor::Black(0.f, 0.f, 0.f);
inline constexpr FLinearColor FLinearColor::Transparent(0.f, 0.f, 0.f, 0.f);
inline constexpr FLinearColor FLinearColor::Red(1.f, 0.f, 0.f);
inline constexpr FLinearColor FLinearColor::Green(0.f, 1.f, 0.f);
inline constexpr FLinearColor FLinearColor::Blue(0.f, 0.f, 1.f);
inline constexpr FLinearColor FLinearColor::Yellow(1.f, 1.f, 0.f);

inline constexpr FColor FColor::White(255, 255, 255);
inline constexpr FColor FColor::Black(0, 0, 0);
inline constexpr FColor FColor::Transparent(0, 0, 0, 0);
inline constexpr FColor FColor::Red(255, 0, 0);
inline constexpr FColor FColor::Green(0, 255, 0);
inline constexpr FColor FColor::Blue(0, 0, 255);
inline constexpr FColor FColor::Yellow(255, 255, 0);
inline constexpr FColor FColor::Cyan(0, 255, 255);
inline constexpr FColor FColor::Magenta(255, 0, 255);
inline constexpr FColor FColor::Orange(243, 156, 18);
inline constexpr FColor FColor::Purple(169, 7, 228);
inline constexpr FColor FColor::Turquoise(26, 188, 156);
inline constexpr FColor FColor::Silver(189, 195, 199);
inline constexpr FColor FColor::Emerald(80, 200, 120);
