// Copyright Velmorant. All Rights Reserved.

#include "Misc/AssetCategoryPath.h"

FAssetCategoryPath::FAssetCategoryPath(const FText& InCategory)
{
	Append(InCategory);
}

FAssetCategoryPath::FAssetCategoryPath(const FText& InCategory, const FText& InSubCategory)
{
	Append(InCategory);
	Append(InSubCategory);
}

FAssetCategoryPath::FAssetCategoryPath(const FAssetCategoryPath& InCategory, const FText& InSubCategory)
	: CategoryPath(InCategory.CategoryPath)
{
	Append(InSubCategory);
}

FAssetCategoryPath::FAssetCategoryPath(TConstArrayView<FText> InCategoryPath)
{
	for (const FText& Category : InCategoryPath)
	{
		Append(Category);
	}
	checkf(!CategoryPath.IsEmpty(), TEXT("An asset category path needs at least one category."));
}

void FAssetCategoryPath::Append(const FText& Category)
{
	const FString* Source = FTextInspector::GetSourceString(Category);
	const FString Identity = Source != nullptr ? *Source : Category.ToString();
	CategoryPath.Emplace(FName(*Identity), Category);
}
