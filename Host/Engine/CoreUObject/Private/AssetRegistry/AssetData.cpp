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

	FString ShortNameOf(const FString& PackageName)
	{
		FString ShortName = PackageName;
		PackageName.Split(TEXT("/"), nullptr, &ShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return ShortName;
	}
}

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPathName)
	: PackageName(InPackageName)
	, PackagePath(InPackagePath)
	, AssetName(InAssetName)
	, AssetClassPath(InAssetClassPathName)
{
}

FAssetData::FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FTopLevelAssetPath InAssetClassPathName)
	: PackageName(*InLongPackageName)
	, PackagePath(AssetDataPaths::FolderOf(InLongPackageName))
	, AssetClassPath(InAssetClassPathName)
{
	FString ObjectName = InObjectPath;
	InObjectPath.Split(TEXT("."), nullptr, &ObjectName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	AssetName = FName(*ObjectName);
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

bool FAssetData::IsUAsset() const
{
	return !AssetName.IsNone() && AssetDataPaths::ShortNameOf(PackageName.ToString()) == AssetName.ToString();
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

UPackage* FAssetData::GetPackage() const
{
	const UObject* Asset = GetAsset();
	return Asset != nullptr ? Asset->GetPackage() : nullptr;
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

FSoftObjectPath FAssetData::GetSoftObjectPath() const
{
	return IsValid() ? FSoftObjectPath(GetObjectPathString()) : FSoftObjectPath();
}

FString FAssetData::GetObjectPathString() const
{
	return PackageName.IsNone() || AssetName.IsNone() ? FString() : PackageName.ToString() + TEXT(".") + AssetName.ToString();
}

FString FAssetData::GetFullName() const
{
	return AssetClassPath.ToString() + TEXT(" ") + GetObjectPathString();
}

FString FAssetData::GetExportTextName() const
{
	return AssetClassPath.ToString() + TEXT("'") + GetObjectPathString() + TEXT("'");
}

bool FAssetData::IsInstanceOf(const UClass* BaseClass, EResolveClass ResolveClass) const
{
	const UClass* Class = GetClass(ResolveClass);
	return Class != nullptr && Class->IsChildOf(BaseClass);
}
