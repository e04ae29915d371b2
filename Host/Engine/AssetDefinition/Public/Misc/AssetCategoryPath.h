// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/ArrayView.h"
#include "CoreMinimal.h"

/**
 * Where a kind of asset stands in the menu of new assets: a category, perhaps a sub-category below it.
 * A category's identity is the source string of its text, so that equal texts of different namespaces meet in one menu.
 */
struct ASSETDEFINITION_API FAssetCategoryPath
{
	FAssetCategoryPath(const FText& InCategory);
	FAssetCategoryPath(const FText& InCategory, const FText& InSubCategory);
	FAssetCategoryPath(const FAssetCategoryPath& InCategory, const FText& InSubCategory);
	FAssetCategoryPath(TConstArrayView<FText> InCategoryPath);

	FName GetCategory() const { return CategoryPath[0].Key; }
	FText GetCategoryText() const { return CategoryPath[0].Value; }

	bool HasSubCategory() const { return CategoryPath.Num() > 1; }

	/** None and the empty text without a sub-category. */
	FName GetSubCategory() const { return HasSubCategory() ? CategoryPath[1].Key : FName(); }
	FText GetSubCategoryText() const { return HasSubCategory() ? CategoryPath[1].Value : FText::GetEmpty(); }

private:
	void Append(const FText& Category);

	TArray<TPair<FName, FText>> CategoryPath; // never empty
};
