// Copyright Velmorant. All Rights Reserved.

#include "HostSearchWords.h"

FHostSearchWords::FHostSearchWords(const FString& SearchText)
{
	SearchText.ParseIntoArrayWS(Words);
}

bool FHostSearchWords::AreIn(const FString& Text) const
{
	for (const FString& Word : Words)
	{
		if (!Text.Contains(Word))
		{
			return false;
		}
	}
	return true;
}
