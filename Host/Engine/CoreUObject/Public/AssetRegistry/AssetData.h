// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

class UClass;
class UPackage;

/** Whether FAssetData::GetClass() may load a class that is not in memory. */
enum class EResolveClass : uint8
{
	No,
	Yes,
};

/** What is known of an asset without loading it. A value: it does not keep the asset alive and may outlive it. */
struct COREUOBJECT_API FAssetData
{
	FName PackageName; // "/Game/Dir/Asset"
	FName PackagePath; // "/Game/Dir"
	FName AssetName;
	FTopLevelAssetPath AssetClassPath;

	FAssetData() = default;
	FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPathName);

	/** Describes an object in memory, a native class included; null describes nothing. */
	explicit FAssetData(const UObject* InAsset);

	bool operator==(const FAssetData& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }

	/** Whether it names an asset at all; that the asset exists is not looked up. */
	bool IsValid() const;

	/** Loads the package when needed. Null when that fails or the asset is gone. */
	UObject* GetAsset() const;
	bool IsAssetLoaded() const { return FastGetAsset(false) != nullptr; }

	/** The asset when it is in memory; loads it first when bLoad. */
	UObject* FastGetAsset(bool bLoad = false) const;

	UClass* GetClass(EResolveClass ResolveClass = EResolveClass::No) const;

	/** "/Game/Dir/Asset.Asset" */
	FString GetObjectPathString() const;

	/** "/Script/Module.Class'/Game/Dir/Asset.Asset'" */
	FString GetExportTextName() const;

	friend uint32 GetTypeHash(const FAssetData& AssetData)
	{
		return HashCombine(GetTypeHash(AssetData.PackageName), GetTypeHash(AssetData.AssetName));
	}
};
