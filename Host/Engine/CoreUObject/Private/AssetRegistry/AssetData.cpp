// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetData.h"

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace AssetDataPaths
{
	/** The folder of a package name, without a trailing slash. */
	FName FolderOf(const FString& PackageName)
	{
		FString Folder;
		PackageName.Split(TEXT("/"), &Folder, nullptr, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return FName(*Folder);
	}
}

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPathName)
	: PackageName(InPackageName)
	, PackagePath(InPackagePath)
	, AssetName(InAssetName)
	, AssetClassPath(InAssetClassPathName)
{
}

FAssetData::FAssetData(const UObject* InAsset)
{
	if (InAsset == nullptr)
	{
		return;
	}
	const FString Package = InAsset->GetPackage()->GetName();
	PackageName = InAsset->GetPackage()->GetFName();
	PackagePath = AssetDataPaths::FolderOf(Package);
	AssetName = InAsset->GetFName();
	AssetClassPath = InAsset->GetClass()->GetClassPathName();
}

bool FAssetData::IsValid() const
{
	return !PackageName.IsNone() && !PackagePath.IsNone() && !AssetName.IsNone() && !AssetClassPath.IsNull();
}

UObject* FAssetData::GetAsset() const
{
	return FastGetAsset(true);
}

UObject* FAssetData::FastGetAsset(bool bLoad) const
{
	if (!IsValid())
	{
		return nullptr;
	}
	UObject* Asset = FindObject<UObject>(nullptr, *GetObjectPathString());
	if (Asset == nullptr && bLoad)
	{
		Asset = LoadObject<UObject>(nullptr, *GetObjectPathString());
	}
	return ::IsValid(Asset) ? Asset : nullptr;
}

UClass* FAssetData::GetClass(EResolveClass ResolveClass) const
{
	if (!IsValid())
	{
		return nullptr;
	}
	UClass* Class = FindObject<UClass>(nullptr, *AssetClassPath.ToString());
	if (Class == nullptr && ResolveClass == EResolveClass::Yes)
	{
		Class = LoadObject<UClass>(nullptr, *AssetClassPath.ToString());
	}
	return Class;
}

FString FAssetData::GetObjectPathString() const
{
	return PackageName.IsNone() || AssetName.IsNone() ? FString() : PackageName.ToString() + TEXT(".") + AssetName.ToString();
}

FString FAssetData::GetExportTextName() const
{
	return AssetClassPath.ToString() + TEXT("'") + GetObjectPathString() + TEXT("'");
}
