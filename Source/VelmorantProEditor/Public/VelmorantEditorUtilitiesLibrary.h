// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorNotificationCompletionState.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Widgets/Notifications/SNotificationList.h"
#include "VelmorantEditorUtilitiesLibrary.generated.h"

class ULevelVariantSets;
class UVelmorantConfiguratorDataAsset;

/**
 * The toolkit's editor operations, for native code, Blueprints and editor scripts. Game thread only.
 *
 * Nothing here throws or returns error codes: outcomes are shown as editor notifications, failures are logged as well. Where no
 * notification can be shown, as in commandlets, the log has all of them.
 */
UCLASS()
class VELMORANTPROEDITOR_API UVelmorantEditorUtilitiesLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Looks in the project's engine configuration for the unit volumes' collision profile and trace channel; if one is missing,
	 * asks the designer whether to add them.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Collision")
	static void CheckForUnitVolumeCollisionProfile();

	/**
	 * Inserts the profile line and the channel line after the last profile line of the project's DefaultEngine.ini.
	 * A pure text edit: calling it twice inserts the lines twice, and a file without profile lines is only rewritten.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Collision")
	static void AddUnitVolumeCollisionProfile();

	/** Shows a notification for Duration seconds. Not for Blueprints: the state is the notification system's own type. */
	static void NotifyPopup(const FString& Title, const FString& SubText, SNotificationItem::ECompletionState State, float Duration);

	/** Shows a notification for Duration seconds. An unknown state counts as none. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Notification")
	static void PushEditorNotification(const FString& Title, const FString& SubText, EEditorNotificationCompletionState State, float Duration);

	/** Copies Text, even an empty one, and tells so with SubText. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Clipboard")
	static void CopyToClipboard(const FString& Text, const FString& SubText);

	/** The version name of the plugin VelmorantPro, which must be there. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|Version")
	static FString GetVelmorantProVersion();

	/** The version name of the plugin VelmorantSDK, which must be there. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|Version")
	static FString GetVelmorantSDKVersion();

	/** Copies a version to the clipboard and tells so. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Version")
	static void CopyVersionToClipboard(const FString& Version);

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Configurator", meta = (ToolTip = "Creates a Configurator Data Asset from the specified Configurator ID.\n@param ConfiguratorID The ID of the configurator to generate a data asset for."))
	static void CreateConfiguratorDataAssetFromConfigurator(const FName& ConfiguratorID);

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Configurator", meta = (ToolTip = "Updates the information of the given Configurator Data Asset.\n@param ConfiguratorData The Velmorant Configurator Data Asset to update.\n@return True if the update was successful, false otherwise."))
	static bool UpdateConfiguratorDataAssetInfo(UVelmorantConfiguratorDataAsset* ConfiguratorData);

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Configurator", meta = (ToolTip = "Creates or updates a LevelVariantSet using the given ConfiguratorData asset.\nThis method generates a LevelVariantSet for the provided Configurator data asset.\nIf the LevelVariantSet already exists, it updates it based on the Configurator information.\nIf it does not exist, a new LevelVariantSet will be created.\n@param ConfiguratorData A reference to the UVelmorantConfiguratorDataAsset used to create or update the LevelVariantSet.\n                       It must contain valid data, such as a ConfiguratorName or Room, to create the LevelVariantSet.\n                       If null or invalid, the operation will not proceed."))
	static void CreateVariantSetFromConfigurator(UVelmorantConfiguratorDataAsset* ConfiguratorData);

	/**
	 * Adds to LevelVariantSets what it misses of the configurator: a variant set per room and group, a variant per product.
	 * Nothing is removed or reordered.
	 * @return false, with a notification, when LevelVariantSets is null.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Configurator")
	static bool FillOutLevelVariantWithConfigurator(UVelmorantConfiguratorDataAsset* ConfiguratorData, ULevelVariantSets* LevelVariantSets);

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|Configurator", meta = (ToolTip = "Creates a Level Variant Actor in the current level using the specified configurator data.\nIf a Level Variant Actor already exists in the level, it updates the existing actor with the provided configurator data.\nThis function also manages viewport focus and actor selection in the editor.\n@param ConfiguratorData The configurator data asset used to set up the Level Variant Actor.\n                       If null, the function returns without performing any action."))
	static void CreateLevelVariantActorInLevel(UVelmorantConfiguratorDataAsset* ConfiguratorData);

	/**
	 * Gives each unit volume of the open level the identity of a unit of the target unit group: the last unit to the first volume
	 * found, and so on until either runs out. For trying a level out before its volumes are assigned by hand.
	 * @return false when there is no target, no unit or no volume.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|UnitVolume")
	static bool AssignRandomUnitsFromDataIntoLevel();
};
