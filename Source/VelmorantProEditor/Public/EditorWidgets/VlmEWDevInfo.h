// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorWidgets/VlmEWPanelData.h"
#include "VlmEWDevInfo.generated.h"

class UCheckBox;
class UTextBlock;
class UVlmButton;
class UVlmImage;

/** Shows who is signed in, and lets them sign out or act as the user of the running model. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWDevInfo : public UVlmEWPanelData
{
	GENERATED_BODY()

public:
	//~ Begin IVlmEditorPanelInterface
	virtual void ActivateDataPanel_Implementation() override;
	//~ End IVlmEditorPanelInterface

	/** Whether the developer acts as the user when the model runs in the editor. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWDevInfo")
	bool GetDevUserInRuntime() const;

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWDevInfo")
	void SetDevUserInRuntime(bool bUseInRuntime);

protected:
	//~ Begin UUserWidget
	virtual void NativeConstruct() override;
	//~ End UUserWidget

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWDevInfo", meta = (BindWidget))
	TObjectPtr<UTextBlock> DevName;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWDevInfo", meta = (BindWidget))
	TObjectPtr<UTextBlock> DevEmail;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWDevInfo", meta = (BindWidget))
	TObjectPtr<UVlmImage> DevImage;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWDevInfo", meta = (BindWidget))
	TObjectPtr<UVlmButton> LogoutButton;

	/** Shows and sets GetDevUserInRuntime(); a layout may do without it. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWDevInfo", meta = (BindWidgetOptional))
	TObjectPtr<UCheckBox> CheckedState;

private:
	UFUNCTION()
	void ReceivedClickLogout(FName ButtonID);
};
