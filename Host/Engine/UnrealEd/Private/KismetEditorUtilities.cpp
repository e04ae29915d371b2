// Copyright Velmorant. All Rights Reserved.

#include "Kismet2/KismetEditorUtilities.h"

#include "HostBlueprints.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogBlueprint, Log, All);

namespace KismetEditorUtilities
{
	/** What the class or the nearest one above says; a class of whose line nobody says anything is none. */
	bool IsBlueprintBase(const UClass& Class)
	{
		for (const UClass* Asked = &Class; Asked != nullptr; Asked = Asked->GetSuperClass())
		{
			if (Asked->HasMetaData(TEXT("IsBlueprintBase")))
			{
				return Asked->GetBoolMetaData(TEXT("IsBlueprintBase"));
			}
		}
		return false;
	}
}

bool FKismetEditorUtilities::CanCreateBlueprintOfClass(const UClass* Class)
{
	check(Class != nullptr);
	return !Class->HasAnyClassFlags(CLASS_Deprecated | CLASS_NewerVersionExists) && (Class == UObject::StaticClass() || KismetEditorUtilities::IsBlueprintBase(*Class));
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, EBlueprintType BlueprintType,
	TSubclassOf<UBlueprint> BlueprintClassType, TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName CallingContext)
{
	checkf(StaticFindObjectFast(nullptr, Outer, NewBPName) == nullptr, TEXT("%s exists already in %s."), *NewBPName.ToString(), *Outer->GetPathName());
	UBlueprint* Blueprint = NewObject<UBlueprint>(Outer, BlueprintClassType, NewBPName, RF_Public | RF_Standalone | RF_Transactional);
	Blueprint->ParentClass = ParentClass;
	Blueprint->BlueprintType = BlueprintType;
	HostBlueprints::GenerateClass(*Blueprint, BlueprintGeneratedClassType);
	Blueprint->MarkPackageDirty();
	UE_CLOG(!CallingContext.IsNone(), LogBlueprint, Log, TEXT("%s was made in the context '%s'."), *Blueprint->GetName(), *CallingContext.ToString()); // the engine's analytics get it
	return Blueprint;
}
