// Copyright Velmorant. All Rights Reserved.

#include "HostAssetDefinitions.h"

#include "AssetDefinition.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

TArray<const UAssetDefinition*> HostAssetDefinitions::GetAll()
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UAssetDefinition::StaticClass(), Classes, true);
	Classes.RemoveAll([](const UClass* Class) { return Class->HasAnyClassFlags(CLASS_Abstract); });
	Classes.Sort([](const UClass& Left, const UClass& Right) { return Left.GetPathName().Compare(Right.GetPathName()) < 0; });
	TArray<const UAssetDefinition*> Definitions;
	for (const UClass* Class : Classes)
	{
		Definitions.Add(Class->GetDefaultObject<UAssetDefinition>());
	}
	return Definitions;
}

const UAssetDefinition* HostAssetDefinitions::FindExact(const UClass* AssetClass)
{
	for (const UAssetDefinition* Definition : GetAll())
	{
		if (Definition->GetAssetClass().Get() == AssetClass)
		{
			return Definition;
		}
	}
	return nullptr;
}
