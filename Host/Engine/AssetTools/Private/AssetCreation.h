// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UClass;
class UFactory;
class UObject;

/** What an asset is to be made from. */
struct FAssetRequest
{
	FString AssetName;
	FString PackagePath;
	UClass* AssetClass = nullptr; // null takes the factory's
	UFactory* Factory = nullptr; // null makes a plain new object
	FName CallingContext;
};

namespace AssetCreation
{
	/** Makes the asset of IAssetTools::CreateAsset(). */
	UObject* Create(const FAssetRequest& Request);

	/** Asks the user where to save; false when they cancel. Name and folder of the request become theirs. */
	bool AskWhereToSave(FAssetRequest& Request);
}
