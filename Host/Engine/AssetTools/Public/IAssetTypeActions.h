// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetTypeCategories.h"
#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class UClass;

/** The older way to present a class of asset: an object registered with the asset tools. An asset definition of the class wins over it. */
class IAssetTypeActions : public TSharedFromThis<IAssetTypeActions>
{
public:
	virtual ~IAssetTypeActions() = default;

	virtual FText GetName() const = 0;
	virtual UClass* GetSupportedClass() const = 0;
	virtual FColor GetTypeColor() const = 0;

	/** EAssetTypeCategories bits. */
	virtual uint32 GetCategories() = 0;
};
