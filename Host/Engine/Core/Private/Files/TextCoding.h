// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/** UTF-8 to UTF-16 and back, strictly: what does not convert without loss is refused. Quick on ASCII. */
namespace TextCoding
{
	constexpr char16_t Replacement = u'\uFFFD'; // for what is not well-formed

	/** Offset of the first byte that is not well-formed UTF-8 (overlong forms and surrogates included), or Bytes.size(). */
	size_t FindInvalidUtf8(std::string_view Bytes);

	/** Halves of surrogate pairs, which UTF-16 can hold and UTF-8 cannot. */
	enum class EHalfPairs
	{
		Refuse,
		Keep // as if they were characters, in three bytes: texts of UTF-16 files while they are in memory
	};

	/** Replaces Out. On failure Out holds what came before OutBadOffset. */
	bool DecodeUtf8(std::string_view Bytes, std::vector<char16_t>& Out, size_t& OutBadOffset, EHalfPairs HalfPairs = EHalfPairs::Refuse);

	/** Appends to Out. False for half of a surrogate pair that is not to be kept. */
	bool EncodeUtf8(std::u16string_view Text, std::string& Out, EHalfPairs HalfPairs = EHalfPairs::Refuse);

	bool IsAscii(std::string_view Text);

	/** What is not well-formed, and all behind it, shows as one replacement character: for messages and names, never for contents. */
	FString ToFString(std::string_view Utf8);
}
