// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTypeActions.h"

/** What most type actions have in common; a subclass gives name, class, colour and categories. */
class FAssetTypeActions_Base : public IAssetTypeActions
{
public:
	//~ Begin IAssetTypeActions
	//~ End IAssetTypeActions
};
