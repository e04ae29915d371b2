// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <string>
#include <string_view>

/** A text file whose encoding is kept. */
class FDescriptorFile
{
public:
	/** False, with the reason reported, when it is not there or not readable as text. */
	bool Read(const FString& Path);

	const std::string& GetBytes() const { return Bytes; }
	const std::string& GetText() const { return Text; } // UTF-8 without mark

	/** As bytes of this file: in its encoding, with its byte-order mark. */
	std::string Encode(const std::string& NewText) const;

private:
	std::string Bytes;
	std::string Text;
};
