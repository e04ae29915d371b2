// Copyright Velmorant. All Rights Reserved.

#include "AssetRenaming.h"

#include "AssetNames.h"
#include "Engine/World.h"
#include "HostPackages.h"
#include "IAssetTools.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetRenaming, Log, All);

namespace AssetRenaming
{
	/** Why the asset cannot have the name; empty when it can. */
	FString FindObstacle(const UObject* Asset, const FAssetRenameData& Request, const FString& PackageName)
	{
		FString Reason;
		if (!HostPackages::IsValidAssetName(Request.NewName, &Reason) || !HostPackages::IsValidPackageName(PackageName, &Reason))
		{
			return Reason;
		}
		if (Asset == nullptr || HostPackages::FindMainAsset(Asset->GetPackage()) != Asset)
		{
			return TEXT("it is no asset");
		}
		if (Asset->IsA<UWorld>())
		{
			return TEXT("levels keep their names");
		}
		if (AssetNames::IsTaken(PackageName))
		{
			return TEXT("the name is taken");
		}
		return FString();
	}
}

bool AssetRenaming::Rename(const FAssetRenameData& Request)
{
	const UObject* const Asset = Request.Asset.Get();
	const FString PackageName = Request.NewPackagePath / Request.NewName;
	const FString Obstacle = FindObstacle(Asset, Request, PackageName);
	if (!Obstacle.IsEmpty())
	{
		UE_LOG(LogAssetRenaming, Error, TEXT("Cannot rename '%s' to '%s': %s."), *(Asset != nullptr ? Asset->GetPathName() : FString(TEXT("None"))), *PackageName, *Obstacle);
		return false;
	}
	return HostPackages::Rename(Asset->GetPackage()->GetName(), PackageName);
}
