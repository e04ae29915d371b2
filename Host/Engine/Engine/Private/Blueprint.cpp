// Copyright Velmorant. All Rights Reserved.

#include "Engine/Blueprint.h"

#include "Engine/BlueprintGeneratedClass.h"
#include "HostBlueprints.h"
#include "HostObjects.h"

void UBlueprint::PostLoad()
{
	Super::PostLoad();
	if (GeneratedClass == nullptr)
	{
		HostBlueprints::GenerateClass(*this, UBlueprintGeneratedClass::StaticClass());
	}
}

void HostBlueprints::GenerateClass(UBlueprint& Blueprint, UClass* MetaClass)
{
	UClass* Parent = Blueprint.ParentClass;
	if (Parent == nullptr)
	{
		return;
	}
	UClass* Class = HostObjects::DeriveClass(Parent, FName(Blueprint.GetName() + TEXT("_C")), Blueprint.GetOuter(), MetaClass);
	Class->ClassGeneratedBy = &Blueprint;
	Class->SetFlags(RF_Public | RF_Transient); // others may name it, but it is never saved: the Blueprint makes it again
	Blueprint.GeneratedClass = Class;
}
