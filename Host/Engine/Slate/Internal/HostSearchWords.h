// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** What somebody typed into a search box: words in any order. */
class FHostSearchWords
{
public:
	explicit FHostSearchWords(const FString& SearchText);

	/** Whether the text contains all words; case does not count. No words are in every text. */
	bool AreIn(const FString& Text) const;

private:
	TArray<FString> Words;
};
