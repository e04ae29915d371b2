// Copyright Velmorant. All Rights Reserved.

#include "VelmorantTextSearch.h"

void FVelmorantTextSearch::SetRows(int32 NumRows, TFunctionRef<void(int32 Row, FString& InOutText)> AppendText)
{
	JoinedTexts.Reset();
	Ends.Reset(NumRows);
	for (int32 Row = 0; Row < NumRows; ++Row)
	{
		AppendText(Row, JoinedTexts);
		Ends.Add(JoinedTexts.Len());
	}
	JoinedTexts.ToLowerInline();
}

TArray<int32> FVelmorantTextSearch::Find(const FString& Text) const
{
	const FString LowerText = Text.ToLower();
	const auto FindFrom = [this, &LowerText](int32 Start) { return JoinedTexts.Find(LowerText, ESearchCase::CaseSensitive, ESearchDir::FromStart, Start); };

	TArray<int32> Found;
	int32 Row = 0;
	for (int32 Place = FindFrom(0); Place != INDEX_NONE;)
	{
		while (Ends[Row] <= Place)
		{
			++Row;
		}
		if (Place + LowerText.Len() <= Ends[Row]) // what begins in one row and ends in another is in neither
		{
			Found.Add(Row);
		}
		Place = FindFrom(Ends[Row]);
	}
	return Found;
}
