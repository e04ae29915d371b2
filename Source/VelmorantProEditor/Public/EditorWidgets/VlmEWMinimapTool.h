// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Slate/WidgetTransform.h"
#include "VlmEWMinimapTool.generated.h"

class AMinimapLevelController;
class UMinimapConfigAsset;

/** Inspects and adjusts the minimap of the open level. Without a controller in the level it does nothing. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWMinimapTool : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Looks for the controller anew and tells so, found or not; does nothing outside a world. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWMinimapTool")
	void FindMinimapLevelController();

	/** -1 without a controller or an active floor. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWMinimapTool")
	int32 GetActiveMinimapFloor() const;

	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWMinimapTool")
	UMinimapConfigAsset* GetMinimapConfig() const;

	/**
	 * The range to offer for picking a floor: 1 to one above the number of floors.
	 * @return false, with the empty range 1 to 0, when there are no floors.
	 */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWMinimapTool")
	bool GetMinimapFloorRange(int32& MinFloor, int32& MaxFloor) const;

	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWMinimapTool")
	bool HasMinimapFloors() const;

	/** @return whether the controller has such a floor. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWMinimapTool")
	bool SetActiveMinimapFloor(int32 FloorIndex);

	/** Writes where the active floor's picture stands on the screen. No transaction, no dirty mark: the caller decides about both. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWMinimapTool")
	void SetActiveFloorWidgetTransform(const FWidgetTransform& NewTransform);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWMinimapTool")
	void OnScanMinimapLevel();

protected:
	//~ Begin UUserWidget
	virtual void NativeOnInitialized() override;
	//~ End UUserWidget

	/** The one found in the level, or null. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWMinimapTool")
	TObjectPtr<AMinimapLevelController> MinimapLevelController;

private:
	/** Whether a controller was found and has not been deleted since. */
	bool HasController() const;
};
