// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetDefinition.h"
#include "CoreMinimal.h"
#include "AssetDefinitionDefault.generated.h"

/** What most asset definitions derive from. Host: there are no asset editors, so it adds nothing to its base. */
UCLASS(Abstract)
class UNREALED_API UAssetDefinitionDefault : public UAssetDefinition
{
	GENERATED_BODY()
};
