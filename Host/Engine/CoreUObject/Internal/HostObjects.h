// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/Function.h"
#include "UObject/Class.h"

class FMulticastDelegateProperty;
class UPackage;

/**
 * The object system of the running editor.
 *
 * Native types, their packages and their functions live as long as the process. Everything else, class default objects and
 * types derived at run time included, belongs to one editor and goes in TearDown().
 */
namespace HostObjects
{
	/** Builds the types of all linked modules, ordered by package and name. Default objects follow when asked for. */
	void Boot();

	/** Destroys all objects of this editor, rooted ones too. Pointers to them that are weak or strong read as null from now on. */
	void TearDown();

	/** What the editor does between frames; never called inside a construction. @return how many objects went. */
	int32 CollectGarbage();

	struct FCounts
	{
		int32 Native = 0; // types of linked modules, their packages and functions
		int32 Editor = 0; // all other objects
		int32 Defaults = 0; // class default objects among them
		int32 Rooted = 0; // in the root set, or held by strong pointers
	};
	FCounts GetCounts();

	/** How packages come into memory: by long name; null when there is no such package. Forgotten in TearDown(). */
	void SetPackageLoader(TFunction<UPackage*(const FString& LongPackageName)> Loader);

	/**
	 * A class that is not native: its objects are those of the nearest native class above, its events can be answered by scripts.
	 * @param ClassOfClass what the class object itself is; UClass or derived from it
	 */
	UClass* DeriveClass(UClass* Parent, FName Name, UObject* Outer, UClass* ClassOfClass = UClass::StaticClass());

	/** The same for a class object that exists already (made with NewObject) and has no parent yet. */
	void SetParentClass(UClass* Class, UClass* Parent);

	/**
	 * Gives a derived class a function. If it has the name of an inherited one (or of one of its interfaces), it takes over
	 * that one's parameters; otherwise it has none. An existing script of that name is replaced.
	 */
	UFunction* AddScriptFunction(UClass* Class, FName Name, UFunction::FScriptBody Body);

	/** The same for a function that can listen to a delegate: it has that one's parameters. Null when they are not known. */
	UFunction* AddScriptListener(UClass* Class, FName Name, const FMulticastDelegateProperty& Delegate, UFunction::FScriptBody Body);

	/** Makes a derived class an implementer of an interface; Cast to the I… type stays null for it. */
	void AddScriptInterface(UClass* Class, UClass* Interface);
}
