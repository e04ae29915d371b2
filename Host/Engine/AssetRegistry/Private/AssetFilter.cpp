// Copyright Velmorant. All Rights Reserved.

#include "AssetFilter.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace AssetFilter
{
	template<typename T>
	TSet<T> ToSet(const TArray<T>& Elements)
	{
		TSet<T> Set;
		for (const T& Element : Elements)
		{
			Set.Add(Element);
		}
		return Set;
	}

	/** The class and all below it that are in memory; the path itself also when its class is not. */
	void AddWithDerived(const FTopLevelAssetPath& ClassPath, TSet<FTopLevelAssetPath>& Paths)
	{
		Paths.Add(ClassPath);
		const UClass* Class = FindObject<UClass>(nullptr, *ClassPath.ToString());
		if (Class == nullptr)
		{
			return;
		}
		TArray<UClass*> Derived;
		GetDerivedClasses(Class, Derived, true);
		for (const UClass* DerivedClass : Derived)
		{
			Paths.Add(DerivedClass->GetClassPathName());
		}
	}
}

FAssetFilter::FAssetFilter(const FARFilter& Filter)
	: PackageNames(AssetFilter::ToSet(Filter.PackageNames))
	, PackagePaths(AssetFilter::ToSet(Filter.PackagePaths))
	, bRecursivePaths(Filter.bRecursivePaths)
	, bByClass(!Filter.ClassPaths.IsEmpty())
{
	for (const FSoftObjectPath& ObjectPath : Filter.SoftObjectPaths)
	{
		ObjectPaths.Add(ObjectPath.ToString());
	}
	if (!Filter.bRecursiveClasses)
	{
		ClassPaths = AssetFilter::ToSet(Filter.ClassPaths);
		return;
	}
	for (const FTopLevelAssetPath& ClassPath : Filter.ClassPaths)
	{
		AssetFilter::AddWithDerived(ClassPath, ClassPaths);
	}
	TSet<FTopLevelAssetPath> Excluded;
	for (const FTopLevelAssetPath& ClassPath : Filter.RecursiveClassPathsExclusionSet)
	{
		AssetFilter::AddWithDerived(ClassPath, Excluded);
	}
	for (const FTopLevelAssetPath& ClassPath : Excluded)
	{
		ClassPaths.Remove(ClassPath);
	}
}

bool FAssetFilter::Fits(const FAssetData& Asset) const
{
	return (PackageNames.IsEmpty() || PackageNames.Contains(Asset.PackageName)) && (PackagePaths.IsEmpty() || FitsPath(Asset.PackagePath)) &&
		(ObjectPaths.IsEmpty() || ObjectPaths.Contains(Asset.GetObjectPathString())) &&
		(!bByClass || ClassPaths.Contains(Asset.AssetClassPath));
}

bool FAssetFilter::FitsPath(FName PackagePath) const
{
	if (PackagePaths.Contains(PackagePath))
	{
		return true;
	}
	if (!bRecursivePaths)
	{
		return false;
	}
	FString Folder = PackagePath.ToString();
	int32 LastSlash = INDEX_NONE;
	while (Folder.FindLastChar(TEXT('/'), LastSlash) && LastSlash > 0)
	{
		Folder = Folder.Left(LastSlash);
		if (PackagePaths.Contains(FName(*Folder)))
		{
			return true;
		}
	}
	return PackagePaths.Contains(FName("/"));
}
