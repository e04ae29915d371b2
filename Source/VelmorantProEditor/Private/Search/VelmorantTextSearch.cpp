// Copyright Velmorant. All Rights Reserved.

#include "Search/VelmorantTextSearch.h"

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
	TArray<int32> Found;
	for (int32 Row = 0, Start = 0; Start < JoinedTexts.Len(); Start = Ends[Row])
	{
		const int32 Place = JoinedTexts.Find(LowerText, ESearchCase::CaseSensitive, ESearchDir::FromStart, Start);
		if (Place == INDEX_NONE)
		{
			break;
		}
		while (Ends[Row] <= Place)
		{
			++Row;
		}
		if (Place + LowerText.Len() <= Ends[Row]) // what begins in one row and ends in another is in neither
		{
			Found.Add(Row);
		}
	}
	return Found;
}
