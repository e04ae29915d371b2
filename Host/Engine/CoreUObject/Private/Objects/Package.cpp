// Copyright Velmorant. All Rights Reserved.

#include "UObject/Package.h"

#include "HostState.h"
#include "Objects/EditorPackages.h"
#include "Objects/ObjectNameTable.h"

UPackage::FPackageDirtyStateChanged UPackage::PackageDirtyStateChangedEvent;
UPackage::FOnPackageMarkedDirty UPackage::PackageMarkedDirtyEvent;

static FHostStateReset GResetPackageDelegates([] {
	UPackage::PackageDirtyStateChangedEvent.Clear();
	UPackage::PackageMarkedDirtyEvent.Clear();
});

UPackage::UPackage(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UPackage::SetDirtyFlag(bool bInIsDirty)
{
	if (bDirty != bInIsDirty && this != ::GetTransientPackage())
	{
		bDirty = bInIsDirty;
		PackageDirtyStateChangedEvent.Broadcast(this);
	}
}

UObject* UPackage::FindAssetInPackage(EObjectFlags RequiredTopLevelFlags) const
{
	UObject* Asset = nullptr;
	FObjectNameTable::Get().ForEachInner(this, [&Asset, RequiredTopLevelFlags](UObject* Inner) {
		if (!Asset && Inner->IsAsset() && (RequiredTopLevelFlags == RF_NoFlags || Inner->HasAnyFlags(RequiredTopLevelFlags)))
		{
			Asset = Inner;
		}
	});
	return Asset;
}

UPackage* GetTransientPackage()
{
	return FEditorPackages::Get().GetTransientPackage();
}
