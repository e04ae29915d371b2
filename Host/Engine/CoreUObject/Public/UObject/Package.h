// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/RootClass.h"
#include "UObject/Object.h"

/** The outermost object: what is stored as one file, or the types of one native module ("/Script/Module"). */
class UPackage : public UObject
{
	HOST_ROOT_CLASS_BODY(UPackage, UObject)

public:
	explicit UPackage(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	DECLARE_MULTICAST_DELEGATE_OneParam(FPackageDirtyStateChanged, UPackage*);
	/** The dirty flag of a package changed. Cleared when the editor goes down. */
	static FPackageDirtyStateChanged PackageDirtyStateChangedEvent;
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageMarkedDirty, UPackage*, bool);
	/** MarkPackageDirty() reached a package; says whether it was dirty before. Cleared when the editor goes down. */
	static FOnPackageMarkedDirty PackageMarkedDirtyEvent;

	/** Whether it has unsaved changes. */
	bool IsDirty() const { return bDirty; }
	void SetDirtyFlag(bool bInIsDirty);

	/** Whether all its objects are in memory. A newly made package counts once it is told so. */
	bool IsFullyLoaded() const { return bFullyLoaded; }
	void MarkAsFullyLoaded() { bFullyLoaded = true; }

	bool HasAnyPackageFlags(uint32 Flags) const { return (PackageFlags & Flags) != 0; }
	void SetPackageFlags(uint32 Flags) { PackageFlags |= Flags; }

	/** The asset of the package: its first public top-level object. Null for empty packages. */
	UObject* FindAssetInPackage(EObjectFlags RequiredTopLevelFlags = RF_NoFlags) const;

private:
	bool bDirty = false;
	bool bFullyLoaded = false;
	uint32 PackageFlags = PKG_None;
};
