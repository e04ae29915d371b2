// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostJson.h"
#include "Templates/Function.h"
#include "UObject/TopLevelAssetPath.h"

class UObject;
class UPackage;

/**
 * Storage of assets and levels: one readable JSON file per package below the folder of its mount point,
 * `<Name>.uasset.json`, or `<Name>.umap.json` for a level.
 *
 * Nothing is read before somebody asks: mounting costs nothing, a look-up touches one file name, a scan reads only the heads
 * of the files. Problems with files go to HostProblems with file, place in the document, reason and remedy.
 * A `.uasset` or `.umap` of the real engine is an asset of unknown content: its name is taken, it cannot be loaded and is never written.
 */
namespace HostPackages
{
	/** What stands on disk under a package name. */
	enum class EStored : uint8
	{
		Nothing,
		Text, // one of our JSON files
		Binary, // a file of the real engine that this host cannot read
	};

	/** One asset found on disk without loading it. */
	struct FStoredAsset
	{
		FName PackageName;
		FName AssetName;
		FTopLevelAssetPath ClassPath;
		FString File;
	};

	//~ Mount points

	/**
	 * Makes the files below Directory reachable under Root, "/Game/" for one. Mounting a root again moves it.
	 * The first mount of an editor also makes StaticLoadObject() and friends load through this storage.
	 */
	void Mount(const FString& Root, const FString& Directory);

	/** Roots with leading and trailing slash, in order of mounting. */
	TArray<FString> GetMountedRoots();

	/** Whether the text can name a package: a mounted root, then non-empty parts without characters that file or object names forbid. */
	bool IsValidPackageName(const FString& PackageName, FString* OutReason = nullptr);

	/** Whether the text can be the name of an asset: not empty, no character that object names forbid. */
	bool IsValidAssetName(const FString& AssetName, FString* OutReason = nullptr);

	/** The characters that no object name may hold. */
	const TCHAR* GetForbiddenNameCharacters();

	//~ What is on disk

	EStored GetStored(const FString& PackageName);

	/** The file that holds the package, binary ones included; empty when there is none. */
	FString FindFile(const FString& PackageName);

	/** All text assets below the mounted folders, ordered by package name, ignoring case. Reads the head of every file. */
	TArray<FStoredAsset> Scan();

	/** Grows when what Scan() finds may have changed through this storage: on mounts, saves and deletions. Never 0. */
	uint64 GetStorageVersion();

	//~ Loading

	/**
	 * The package with everything in it, loaded when it is not in memory yet.
	 * @return null when there is no such file or it was refused; a refused file leaves no object behind.
	 */
	UPackage* Load(const FString& PackageName);

	/** The asset of a package: the object that bears the package's short name. Null when the package cannot be loaded. */
	UObject* LoadAsset(const FString& PackageName);

	//~ Saving

	/** What one or more saves did. Paths are those of the host's file system, package names as in GetName(). */
	struct FSaveReport
	{
		TArray<FString> WrittenFiles;
		TArray<FString> SavedPackages;
		TArray<FString> FailedPackages; // the reasons went to HostProblems

		bool Succeeded() const { return FailedPackages.IsEmpty(); }
	};

	/** The asset that a package in memory is about; null for a package without one (a script package, or one still being filled). */
	UObject* FindMainAsset(const UPackage* Package);

	/** Writes the package whether dirty or not, and clears its dirty flag on success. */
	FSaveReport Save(UPackage* Package);

	/** Writes every dirty package that holds an asset, ordered by name. */
	FSaveReport SaveAll();

	/** Dirty packages that hold an asset, ordered by name: what would be lost if the editor went down now. */
	TArray<UPackage*> GetDirtyPackages();

	//~ Names and ends

	/**
	 * Packages that hold a reference to this one or to something in it, soft ones included: as they are in memory, else in their files.
	 * Ordered by name. Reads all files.
	 */
	TArray<FString> FindReferencers(const FString& PackageName);

	/**
	 * Gives a package, and the asset in it, another name, which has to be free. Who refers to it refers to it by the new name from then on.
	 * What has a file is written again, with everything else that has changed in it; then the old file goes.
	 * @return false with the reason reported. Nothing has changed then, unless the file of somebody who refers to it could not be
	 *         written: the old file stays for that one.
	 */
	bool Rename(const FString& PackageName, const FString& NewPackageName);

	/** Takes the package's file away, and everything out of the package. @return false when the file could not be deleted: nothing has changed */
	bool Delete(const FString& PackageName);

	/** Takes everything out of a package; who still points at it keeps a dead object until the next collection. The file stays. */
	void Displace(UPackage* Package);

	//~ Classes with a format of their own

	/** A file as its class's own reader or writer sees it. */
	struct FDocument
	{
		FString File; // for messages
		FString AssetName; // the package's short name
		const FHostJson& Json; // the whole document, an object; its "Class" member names the class
	};

	/** Makes the asset, named Document.AssetName, in Package. Reports problems itself and returns null when it refuses the document. */
	using FReader = TFunction<UObject*(const FDocument& Document, UPackage* Package)>;

	/** Writes the asset as a whole document. False refuses to save. */
	using FWriter = TFunction<bool(const UObject* Asset, FHostJson& OutJson)>;

	/**
	 * Reads assets of exactly this class through Reader. Lasts as long as the process; registering again replaces.
	 * Without a writer, assets of the class are never written back: their files are somebody's source.
	 */
	void RegisterReader(const FTopLevelAssetPath& ClassPath, FReader Reader, FWriter Writer = nullptr);

	//~ Properties alone, for such readers and writers
}
