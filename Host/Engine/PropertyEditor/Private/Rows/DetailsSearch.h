// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FDetailsCategories;
class SHostPartList;
class SSearchBox;
class SWidget;

/** The search box of a details panel, and the list of categories that the search leaves. */
class FDetailsSearch
{
public:
	/** Of categories that live as long as the search. */
	explicit FDetailsSearch(const FDetailsCategories& InCategories);

	TSharedRef<SWidget> GetBox() const;
	TSharedRef<SWidget> GetFound() const;

	/** Rows stay, with those around them, whose name or search text contains all words; case does not count. */
	void SetText(const FString& Text);

	/** Again, after rows came or went. */
	void Apply();

private:
	const FDetailsCategories& Categories;
	TSharedPtr<SSearchBox> Box; // made in the constructor
	TSharedRef<SHostPartList> Found;
};
