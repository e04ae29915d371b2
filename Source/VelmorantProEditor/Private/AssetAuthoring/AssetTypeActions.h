// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetTypeActions_Base.h"

/** How the content browser shows the toolkit's assets that have no asset definition. */
class FVelmorantAsset_TypeAction : public FAssetTypeActions_Base
{
public:
	/** @param InCategory the advanced category "VelmorantAsset", as the asset tools registered it. */
	explicit FVelmorantAsset_TypeAction(EAssetTypeCategories::Type InCategory)
		: Category(InCategory)
	{
	}

	//~ Begin IAssetTypeActions
	virtual uint32 GetCategories() override { return Category; }
	virtual FColor GetTypeColor() const override { return FColor::Purple; }
	//~ End IAssetTypeActions

private:
	EAssetTypeCategories::Type Category;
};

/** Maps linker configurations. */
class FMapLinkerAsset_TypeAction : public FVelmorantAsset_TypeAction
{
public:
	using FVelmorantAsset_TypeAction::FVelmorantAsset_TypeAction;

	//~ Begin IAssetTypeActions
	virtual FText GetName() const override;
	virtual UClass* GetSupportedClass() const override;
	//~ End IAssetTypeActions
};

/** Minimap configurations. */
class FMinimapDataAsset_TypeAction : public FVelmorantAsset_TypeAction
{
public:
	using FVelmorantAsset_TypeAction::FVelmorantAsset_TypeAction;

	//~ Begin IAssetTypeActions
	virtual FText GetName() const override;
	virtual UClass* GetSupportedClass() const override;
	//~ End IAssetTypeActions
};
