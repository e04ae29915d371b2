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
	/** Offset of the first byte that is not well-formed UTF-8 (overlong forms and surrogates included), or Bytes.size(). */
	size_t FindInvalidUtf8(std::string_view Bytes);

	/** Replaces Out. On failure Out holds what came before OutBadOffset. */
	bool DecodeUtf8(std::string_view Bytes, std::vector<char16_t>& Out, size_t& OutBadOffset);

	/** Appends to Out. False when Text holds half of a surrogate pair, which UTF-8 cannot express. */
	bool EncodeUtf8(std::u16string_view Text, std::string& Out);

	bool IsAscii(std::u16string_view Text);

	/** What is not well-formed, and all behind it, shows as one replacement character: for messages and names, never for contents. */
	FString ToFString(std::string_view Utf8);
}
