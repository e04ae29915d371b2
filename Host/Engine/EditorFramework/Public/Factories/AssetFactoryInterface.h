// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "AssetFactoryInterface.generated.h"

struct FAssetData;

UINTERFACE(MinimalAPI)
class UAssetFactoryInterface : public UInterface
{
	GENERATED_BODY()
};

/** What puts assets into a level. Host: the question whether it can; actor factories do the placing. */
class IAssetFactoryInterface
{
	GENERATED_BODY()

public:
	virtual bool CanPlaceElementsFromAssetData(const FAssetData& InAssetData) = 0;
};
