// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Rows/SDetailsRow.h"

/** The rows of a details panel, below headings: "Look|Colours" is the heading "Colours" below "Look". */
class FDetailsCategories
{
public:
	/** Metadata Category; properties without one stand under their class's name. */
	static FString FindCategory(const FProperty& Property);

	void Clear();

	/** Makes the category, and those around it, when it is not there yet. */
	void AddRow(const FString& Category, const TSharedRef<SDetailsRow>& Row);

	/** The outermost ones. */
	const TArray<TSharedRef<SDetailsRow>>& GetAll() const { return Categories; }

	/** Brings all rows in step with the elements of containers. @return whether there was anything to do */
	bool FitElements();

	/** Names of the rows, those below others included, with the path of the property in parentheses where they differ. */
	TArray<FString> GetRowTitles() const;

private:
	TArray<TSharedRef<SDetailsRow>> Categories;
	TMap<FString, TSharedRef<SDetailsRow>> CategoriesByPath; // "Look|Colours"
};
