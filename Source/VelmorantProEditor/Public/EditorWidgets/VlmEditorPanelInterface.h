// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "VlmEditorPanelInterface.generated.h"

UINTERFACE(BlueprintType, Blueprintable)
class VELMORANTPROEDITOR_API UVlmEditorPanelInterface : public UInterface
{
	GENERATED_BODY()
};

/** What every data panel of the editor can do. Call through Execute_…, so that Blueprint overrides are reached. */
class VELMORANTPROEDITOR_API IVlmEditorPanelInterface
{
	GENERATED_BODY()

public:
	/** Loads the panel's data. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, CallInEditor, Category = "VlmPanelData")
	void ActivateDataPanel();
	virtual void ActivateDataPanel_Implementation() { bPanelActivated = true; }

	/** Shows the panel's data anew. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, CallInEditor, Category = "VlmPanelData")
	void RefreshPanelData();
	virtual void RefreshPanelData_Implementation() {}

	/** Only ever goes from false to true. */
	bool bPanelActivated = false;
};
