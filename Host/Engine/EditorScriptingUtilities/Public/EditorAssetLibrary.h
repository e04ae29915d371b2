// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "EditorAssetLibrary.generated.h"

/** Asset operations for editor scripts. */
UCLASS()
class EDITORSCRIPTINGUTILITIES_API UEditorAssetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Loads an asset, or finds it in memory.
	 * @param AssetPath "/Path/Asset" or "/Path/Asset.Asset"; the quoted form with a class in front is understood too
	 * @return null, with an error in the log, when the path is malformed or there is no such asset
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static UObject* LoadAsset(const FString& AssetPath);

	/**
	 * Writes the file of an asset.
	 * @param bOnlyIfIsDirty leave an asset without unsaved changes alone; that counts as done
	 * @return false, with an error in the log, when that is no asset or its file could not be written
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty = true);
};
