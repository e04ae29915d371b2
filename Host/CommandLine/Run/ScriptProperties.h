// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

class FProperty;
class UObject;

/** Values of reflected properties as scripts write and read them. */
namespace ScriptProperties
{
	/** Texts and names bare, objects by path, "None" for null, everything else in the engine's text form. */
	FString ToText(const FProperty& Property, const void* Value);

	/**
	 * The other way round; objects are named as in ScriptObjects, assets by path.
	 * @return what is wrong; empty when the value was set
	 */
	FString FromText(const FProperty& Property, const FString& Text, void* Value);

	/**
	 * The value that a path leads to, such as "Rooms[1].Groups.Num": members by name, elements of arrays by index, "Num" for
	 * their number; through objects, too. What stands in a password field reads as bullets.
	 */
	struct FReading
	{
		FString Text;
		FString Error; // why the path leads nowhere; empty when it leads to a value
		bool bSecret = false;
	};
	FReading Read(const UObject& Object, const FString& Path);

	/** Whether two texts say the same value: equal, or equal as numbers, or both true or both false. */
	bool AreEqual(const FString& A, const FString& B);
}
