// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

/**
 * Searches the texts of many rows, letter case aside. Works on a copy of the texts, made once per list: a keystroke then reads one
 * string from end to end rather than the strings of every row.
 */
class FVelmorantTextSearch
{
public:
	/** AppendText adds the text of a row to a string that has other texts already. Later changes of the texts are not noticed. */
	void SetRows(int32 NumRows, TFunctionRef<void(int32 Row, FString& InOutText)> AppendText);

	/** @return the rows whose text contains Text, which is not empty, as indices in ascending order */
	TArray<int32> Find(const FString& Text) const;

private:
	FString JoinedTexts; // of all rows, one after the other, in lower case
	TArray<int32> Ends; // where each row's text ends in it
};
