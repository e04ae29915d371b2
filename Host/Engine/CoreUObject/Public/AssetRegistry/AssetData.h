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

	/** @param InObjectPath "/Game/Dir/Asset.Asset" */
	FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FTopLevelAssetPath InAssetClassPathName);

	/** Describes an object in memory, a native class included; null describes nothing. */
	explicit FAssetData(const UObject* InAsset);

	bool operator==(const FAssetData& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }
	bool operator!=(const FAssetData& Other) const { return !(*this == Other); }

	/** Whether it names an asset at all; that the asset exists is not looked up. */
	bool IsValid() const;

	/** Whether package and asset bear the same short name. */
	bool IsUAsset() const;

	/** Loads the package when needed. Null when that fails or the asset is gone. */
	UObject* GetAsset() const;

	bool IsAssetLoaded() const { return FastGetAsset(false) != nullptr; }

	/** The asset when it is in memory; loads it first when bLoad. */
	UObject* FastGetAsset(bool bLoad = false) const;

	UPackage* GetPackage() const;
	UClass* GetClass(EResolveClass ResolveClass = EResolveClass::No) const;

	FSoftObjectPath GetSoftObjectPath() const;
	FSoftObjectPath ToSoftObjectPath() const { return GetSoftObjectPath(); }

	/** "/Game/Dir/Asset.Asset" */
	FString GetObjectPathString() const;

	/** Class path, a blank, object path. */
	FString GetFullName() const;

	/** "/Script/Module.Class'/Game/Dir/Asset.Asset'" */
	FString GetExportTextName() const;

	/** False when the class is not in memory and may not be loaded. */
	bool IsInstanceOf(const UClass* BaseClass, EResolveClass ResolveClass = EResolveClass::No) const;

	template<typename T>
	bool IsInstanceOf(EResolveClass ResolveClass = EResolveClass::No) const
	{
		return IsInstanceOf(T::StaticClass(), ResolveClass);
	}

	friend uint32 GetTypeHash(const FAssetData& AssetData)
	{
		return HashCombine(GetTypeHash(AssetData.PackageName), GetTypeHash(AssetData.AssetName));
	}
};
