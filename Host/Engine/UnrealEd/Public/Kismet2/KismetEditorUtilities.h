// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Templates/SubclassOf.h"

/** Making Blueprints. */
class UNREALED_API FKismetEditorUtilities
{
public:
	/** Whether the class may be a Blueprint's parent: it, or the nearest class above that says so, is Blueprintable. Class must not be null. */
	static bool CanCreateBlueprintOfClass(const UClass* Class);

	/**
	 * Makes a Blueprint with its class. Nothing named NewBPName may exist in Outer: that is fatal.
	 * @param Outer the package of the new asset
	 */
	static UBlueprint* CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, enum EBlueprintType BlueprintType,
		TSubclassOf<UBlueprint> BlueprintClassType, TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName CallingContext = NAME_None);
};
