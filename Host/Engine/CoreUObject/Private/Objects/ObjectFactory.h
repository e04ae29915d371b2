// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/Object.h"

/** How objects come into being: memory, native constructor, values of the template, PostInitProperties(). */
class FObjectFactory
{
public:
	static UObject* Construct(const FStaticConstructObjectParameters& Params);
	/** A type of the object system, or its package: memory that exists already, no values from templates. */
	static void ConstructNative(void* Memory, UClass* Class, UObject* Outer, FName Name, void (*Constructor)(void*, const FObjectInitializer&));

	static void* Allocate(int32 Size, int32 Alignment);
	static void Free(void* Memory, int32 Size, int32 Alignment);

	/** Enters a new object, or one that is rebuilt in place at ReusedIndex. @return its slot in the object table */
	static int32 Register(UObject* Object, int32 ReusedIndex, bool bNative);
	/** Object was left by its constructor through an exception; its bases are destroyed already. */
	static void DropHalfMade(UObject* Object, UClass* Class, bool bRegistered);
};
