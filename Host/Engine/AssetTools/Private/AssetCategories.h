// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetTypeCategories.h"
#include "CoreMinimal.h"
#include "HostAssetTools.h"

/** Hands out the category bits that are free for anybody. */
class FAssetCategories
{
public:
	EAssetTypeCategories::Type Register(FName Key, const FText& DisplayName);
	EAssetTypeCategories::Type Find(FName Key) const;

	const TArray<HostAssetTools::FAdvancedCategory>& GetAll() const { return Advanced; }

	/** What the menu calls the categories of a mask, engine categories first. */
	TArray<FText> GetDisplayNames(uint32 Mask) const;

private:
	TArray<HostAssetTools::FAdvancedCategory> Advanced; // bits ascend from FirstUser without a gap
};
