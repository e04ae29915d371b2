// Copyright Velmorant. All Rights Reserved.
// Lists of living objects. All of them come in order of creation.

#pragma once

#include "Containers/Array.h"
#include "Templates/Function.h"
#include "UObject/ObjectMacros.h"

class UClass;
class UObject;
class UPackage;

/** Garbage is left out, and so are objects with one of ExclusionFlags. */
void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses = true,
	EObjectFlags ExclusionFlags = RF_ClassDefaultObject);

/** The direct inner objects, or all below. */
void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true,
	EObjectFlags ExclusionFlags = RF_NoFlags);
void ForEachObjectWithOuter(const UObject* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects = true,
	EObjectFlags ExclusionFlags = RF_NoFlags);

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);
