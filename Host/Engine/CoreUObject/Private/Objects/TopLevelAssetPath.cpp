// Copyright Velmorant. All Rights Reserved.

#include "UObject/TopLevelAssetPath.h"

#include "Logging/LogMacros.h"
#include "Properties/PropertyText.h"
#include "UObject/Object.h"

DEFINE_LOG_CATEGORY_STATIC(LogTopLevelAssetPath, Log, All);

bool FTopLevelAssetPath::TrySetPath(FName InPackageName, FName InAssetName)
{
	PackageName = InPackageName;
	AssetName = InPackageName.IsNone() ? FName() : InAssetName;
	return !PackageName.IsNone();
}

bool FTopLevelAssetPath::TrySetPath(const UObject* InObject)
{
	Reset();
	const UObject* Outer = InObject ? InObject->GetOuter() : nullptr;
	if (!InObject || (Outer && Outer->GetOuter()))
	{
		return false; // lies deeper
	}
	return Outer ? TrySetPath(Outer->GetFName(), InObject->GetFName()) : TrySetPath(InObject->GetFName(), FName());
}

bool FTopLevelAssetPath::TrySetPath(const TCHAR* InPath)
{
	return TrySetPath(FStringView(InPath ? InPath : TEXT("")));
}

bool FTopLevelAssetPath::TrySetPath(FStringView InPath)
{
	Reset();
	const FString Path = PropertyText::StripClass(FString(InPath));
	if (Path.IsEmpty() || Path == TEXT("None"))
	{
		return false;
	}
	if (!Path.StartsWith(TEXT("/")))
	{
		UE_LOG(LogTopLevelAssetPath, Error, TEXT("Short asset name used to create FTopLevelAssetPath: \"%s\""), *Path);
		return false;
	}
	int32 Dot = INDEX_NONE;
	int32 Colon = INDEX_NONE;
	if (Path.FindChar(TEXT(':'), Colon))
	{
		return false; // a path to something inside an asset
	}
	const bool bHasAsset = Path.FindChar(TEXT('.'), Dot);
	const FString Asset = bHasAsset ? Path.RightChop(Dot + 1) : FString();
	if ((bHasAsset ? Dot : Path.Len()) >= NAME_SIZE || Asset.Len() >= NAME_SIZE)
	{
		return false; // nothing can be called that
	}
	if (!bHasAsset)
	{
		return TrySetPath(FName(*Path), FName());
	}
	return !Asset.Contains(TEXT(".")) && TrySetPath(FName(*Path.Left(Dot)), FName(*Asset));
}

FString FTopLevelAssetPath::ToString() const
{
	if (PackageName.IsNone())
	{
		return FString();
	}
	FString Result = PackageName.ToString();
	if (!AssetName.IsNone())
	{
		Result += TEXT('.');
		AssetName.AppendString(Result);
	}
	return Result;
}
