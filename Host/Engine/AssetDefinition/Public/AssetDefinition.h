// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "Containers/ArrayView.h"
#include "CoreMinimal.h"
#include "Misc/AssetCategoryPath.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"
#include "AssetDefinition.generated.h"

/** The categories of the engine's own asset types. */
struct ASSETDEFINITION_API EAssetCategoryPaths
{
	static FAssetCategoryPath Basic;
	static FAssetCategoryPath Blueprint;
	static FAssetCategoryPath Material;
	static FAssetCategoryPath Texture;
	static FAssetCategoryPath Animation;
	static FAssetCategoryPath Cinematics;
	static FAssetCategoryPath Audio;
	static FAssetCategoryPath Physics;
	static FAssetCategoryPath UI;
	static FAssetCategoryPath Misc;
	static FAssetCategoryPath Gameplay;
	static FAssetCategoryPath AI;
	static FAssetCategoryPath Input;
	static FAssetCategoryPath FX;
	static FAssetCategoryPath Foliage;
	static FAssetCategoryPath World;
};

/**
 * How the editor presents one class of asset: name, colour, place in the menu of new assets.
 * Subclasses that are not abstract are found by reflection; their default objects answer.
 */
UCLASS(Abstract)
class ASSETDEFINITION_API UAssetDefinition : public UObject
{
	GENERATED_BODY()

public:
	/** The class's own display name unless a definition gives one. */
	virtual FText GetAssetDisplayName() const;

	/** The name of one asset's type; the name of the type in general unless a definition tells them apart. */
	virtual FText GetAssetDisplayName(const FAssetData& AssetData) const;

	/** The class presented. Must be overridden. */
	virtual TSoftClassPtr<UObject> GetAssetClass() const;

	/** Must be overridden. */
	virtual FLinearColor GetAssetColor() const;

	/** The view must stay good for the life of the definition's module. */
	virtual TConstArrayView<FAssetCategoryPath> GetAssetCategories() const;
};
