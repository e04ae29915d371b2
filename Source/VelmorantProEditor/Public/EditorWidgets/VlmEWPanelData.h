// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "EditorWidgets/VlmEditorPanelInterface.h"
#include "VlmEWPanelData.generated.h"

/** Base of the panels that show data of the service. Holds none itself: everything is read from the SDK. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWPanelData : public UUserWidget, public IVlmEditorPanelInterface
{
	GENERATED_BODY()

public:
	//~ Begin IVlmEditorPanelInterface
	virtual void ActivateDataPanel_Implementation() override {}
	//~ End IVlmEditorPanelInterface

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "VlmPanelData")
	bool bRefreshOnActivation = false;
};
