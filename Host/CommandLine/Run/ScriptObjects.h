// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

class AActor;
class FScriptContext;
class UClass;
class UObject;
class UWorld;

/** How scripts name objects and classes of the running editor. */
namespace ScriptObjects
{
	/**
	 * "/Game/Folder/Asset"  an asset, loaded when it is not yet
	 * "actor:Class"         the first actor of that class in the open level
	 * "actor:Label"         the actor of that label or name, when there is no class of that name
	 * "default:Class"       the class's default object, which holds its settings
	 * anything else         an open panel
	 *
	 * @return null with a reason
	 */
	UObject* Find(FScriptContext& Context, const FString& Text, FString& OutReason);

	/** The part behind "actor:", which may stand there as well. Null with a reason. */
	AActor* FindActor(const FString& ClassOrLabel, FString& OutReason);

	/** An asset by path, with or without ".Name" at its end. Null with a reason. */
	UObject* FindAsset(const FString& Path, FString& OutReason);

	/** "/Game/Folder/Asset" of a path with or without ".Name" at its end. */
	FString PackageOf(const FString& Path);

	/** Of all assets of a class and its children, "/Game/Folder/Asset". */
	TArray<FString> GetAssetPaths(const UClass* Class);

	/** By its name, with or without the letter that C++ puts in front, or by path. Null with a reason. */
	UClass* FindClass(const FString& Name, FString& OutReason);

	/** Of all classes, without the letter that C++ puts in front. */
	TArray<FString> GetClassNames();

	/** None for a text that is too long to be a name: nothing is called that. */
	FName ToName(const FString& Text);

	/** The open level's world; null when there is none. */
	UWorld* GetWorld();
}
