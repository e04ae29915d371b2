// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

class UObject;

/** A package and the object of that name in it: "/Script/Module.Class" or "/Game/Dir/Asset.Asset". */
struct FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(FName InPackageName, FName InAssetName)
	{
		TrySetPath(InPackageName, InAssetName);
	}
	explicit FTopLevelAssetPath(const UObject* InObject) { TrySetPath(InObject); }
	explicit FTopLevelAssetPath(const TCHAR* InPath) { TrySetPath(InPath); }
	explicit FTopLevelAssetPath(const FString& InPath) { TrySetPath(*InPath); }
	explicit FTopLevelAssetPath(FStringView InPath) { TrySetPath(InPath); }

	/** Each sets null, and says false, when the text is no path; a short name without package is logged. */
	bool TrySetPath(FName InPackageName, FName InAssetName);
	bool TrySetPath(const UObject* InObject);
	bool TrySetPath(const TCHAR* InPath);
	bool TrySetPath(const FString& InPath) { return TrySetPath(*InPath); }
	bool TrySetPath(FStringView InPath);

	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }
	/** Package, dot, asset; the package alone when there is no asset name; empty for null. */
	FString ToString() const;

	bool IsNull() const { return PackageName.IsNone(); }
	bool IsValid() const { return !PackageName.IsNone(); }
	void Reset()
	{
		PackageName = FName();
		AssetName = FName();
	}

	friend bool operator==(const FTopLevelAssetPath& A, const FTopLevelAssetPath& B)
	{
		return A.PackageName == B.PackageName && A.AssetName == B.AssetName;
	}
	friend uint32 GetTypeHash(const FTopLevelAssetPath& Path)
	{
		return GetTypeHash(Path.PackageName) * 31u + GetTypeHash(Path.AssetName);
	}

private:
	friend struct Z_Statics_FTopLevelAssetPath;

	FName PackageName;
	FName AssetName;
};
