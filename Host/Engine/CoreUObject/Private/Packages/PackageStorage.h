// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostPackages.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UPackage;

/** Where packages live on disk, and what is going on with them. One per editor. */
class FPackageStorage
{
public:
	static FPackageStorage& Get();

	void Mount(const FString& Root, const FString& Directory);
	TArray<FString> GetRoots() const;

	/** Path of the package's file without its suffix; empty when no root is mounted above it. */
	FString GetStem(const FString& PackageName) const;

	/** The package that a text file holds; empty for other files. */
	FString GetPackageName(const FString& File) const;

	struct FFound
	{
		HostPackages::EStored Stored = HostPackages::EStored::Nothing;
		FString File;
	};

	/** Text files win over binary ones. Case of the package name does not count, though it does on disk. */
	FFound Find(const FString& PackageName) const;

	/** All text files below the mounted folders, full paths. */
	TArray<FString> ListFiles() const;

	uint64 GetVersion() const { return Version; }

	/** A package was written to this file. */
	void NoteWritten(const FString& File);

	/** Files were deleted. */
	void NoteRemoved() { ++Version; }

	/** Packages whose files are being read: their objects may be found before their values are in. */
	TSet<FName> Loading;

	/** Says of a loaded asset that one of its references led nowhere: saving would lose it. */
	void MarkIncomplete(UObject* Asset, const FString& Reference);

	/** The reference that saving the asset would lose; null when there is none. */
	const FString* FindLostReference(const UObject* Asset) const;

private:
	struct FMount
	{
		FString Root; // "/Game/"
		FString Directory; // with trailing slash
	};

	const FMount* FindMount(const FString& PackageName) const;
	FFound FindIgnoringCase(const FString& Stem) const;

	struct FIncomplete
	{
		TWeakObjectPtr<UObject> Asset; // another asset under the same name has lost nothing
		FString Reference;
	};

	TArray<FMount> Mounts;
	TArray<FIncomplete> Incomplete;
	uint64 Version = 1;

	/** Files by lower-case path, for names whose case differs; read when first needed. */
	mutable TMap<FString, FString> FilesByLowerCase;
	mutable uint64 ListedVersion = 0;
};

namespace PackageFiles
{
	inline const TCHAR* const AssetSuffix = TEXT(".uasset.json");
	inline const TCHAR* const LevelSuffix = TEXT(".umap.json");
	inline const TCHAR* const BinaryAssetSuffix = TEXT(".uasset");
	inline const TCHAR* const BinaryLevelSuffix = TEXT(".umap");

	/** The part of a package name behind its last slash. */
	FString ShortNameOf(const FString& PackageName);
}
