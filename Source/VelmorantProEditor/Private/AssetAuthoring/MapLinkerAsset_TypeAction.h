// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetTypeActions_Base.h"

/** How the content browser shows maps linker configurations. */
class FMapLinkerAsset_TypeAction : public FAssetTypeActions_Base
{
public:
	/** @param InCategory the advanced category "VelmorantAsset", as the asset tools registered it. */
	explicit FMapLinkerAsset_TypeAction(EAssetTypeCategories::Type InCategory)
		: Category(InCategory)
	{
	}

	//~ Begin IAssetTypeActions
	virtual uint32 GetCategories() override { return Category; }
	virtual FText GetName() const override;
	virtual UClass* GetSupportedClass() const override;
	virtual FColor GetTypeColor() const override;
	//~ End IAssetTypeActions

private:
	EAssetTypeCategories::Type Category;
};
