// Copyright Velmorant. All Rights Reserved.

#include "Objects/EditorPackages.h"

#include "UObject/Package.h"

FEditorPackages& FEditorPackages::Get()
{
	static FEditorPackages* const Packages = new FEditorPackages(); // never destroyed, as the object table
	return *Packages;
}

UPackage* FEditorPackages::GetTransientPackage()
{
	if (!TransientPackage)
	{
		FStaticConstructObjectParameters Params(UPackage::StaticClass());
		Params.Name = FName("/Engine/Transient");
		Params.SetFlags = RF_Public | RF_Transient;
		TransientPackage = static_cast<UPackage*>(StaticConstructObject_Internal(Params));
		TransientPackage->AddToRoot();
	}
	return TransientPackage;
}
