// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UClass;

/** The classes that Blueprints stand for. */
namespace HostBlueprints
{
	/**
	 * Derives the Blueprint's class, "<Blueprint>_C" beside it, from its parent class, and makes it the Blueprint's generated class.
	 * A Blueprint without parent class gets none.
	 * @param MetaClass of what class the new class is to be: UBlueprintGeneratedClass or one below it
	 */
	void GenerateClass(UBlueprint& Blueprint, UClass* MetaClass);
}
