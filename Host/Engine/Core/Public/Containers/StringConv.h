// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/**
 * Conversions between TCHAR (UTF-16) and 8-bit strings (UTF-8). The macros give temporaries that live to the end of the full
 * expression. Malformed input becomes U+FFFD, one for each bad byte or lone surrogate. Null gives an empty string.
 */
template<typename FromType, typename ToType>
class TStringConversion
{
public:
	explicit TStringConversion(const FromType* Source);
	~TStringConversion();
	TStringConversion(const TStringConversion&) = delete;
	TStringConversion& operator=(const TStringConversion&) = delete;

	const ToType* Get() const { return Buffer; }
	/** In units of ToType, without the terminator. */
	int32 Length() const { return Len; }

private:
	void Convert(const FromType* Source, int32 SourceLen);

	static constexpr int32 InlineUnits = 128; // most names and labels need no memory of their own

	ToType Inline[InlineUnits];
	ToType* Buffer = Inline;
	int32 Len = 0;
};

extern template class TStringConversion<TCHAR, ANSICHAR>;
extern template class TStringConversion<ANSICHAR, TCHAR>;

using FTCHARToUTF8 = TStringConversion<TCHAR, ANSICHAR>;
using FUTF8ToTCHAR = TStringConversion<ANSICHAR, TCHAR>;

/** A conversion that the caller keeps as long as its text is needed: const auto Utf8 = StringCast<ANSICHAR>(*Text). */
template<typename ToType, typename FromType>
TStringConversion<FromType, ToType> StringCast(const FromType* Source)
{
	return TStringConversion<FromType, ToType>(Source);
}

#define TCHAR_TO_UTF8(String) (FTCHARToUTF8((const TCHAR*)(String)).Get())
#define UTF8_TO_TCHAR(String) (FUTF8ToTCHAR((const ANSICHAR*)(String)).Get())

// Host: the 8-bit encoding is UTF-8 throughout, so that a path or a message with letters beyond ASCII survives.
#define TCHAR_TO_ANSI(String) TCHAR_TO_UTF8(String)
#define ANSI_TO_TCHAR(String) UTF8_TO_TCHAR(String)
