// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorWidgets/VlmEWPanelData.h"
#include "Types/SlateEnums.h"
#include "VelmorantSDKTypes.h"
#include "VlmEWProjectSelector.generated.h"

class UCheckBox;
class UComboBoxString;
class UEditableText;
class UVlmButton;
class UWidget;

/** Lists the designer's projects; the chosen one becomes the developer user's selected project. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWProjectSelector : public UVlmEWPanelData
{
	GENERATED_BODY()

public:
	//~ Begin IVlmEditorPanelInterface
	virtual void ActivateDataPanel_Implementation() override;
	//~ End IVlmEditorPanelInterface

	/** Asks the service for the projects. There must be an editor user. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWProjectSelector")
	void RequestEditorUserProjects();

	/** The first project of that key code, letter case aside; an empty project when there is none. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWProjectSelector")
	FProject GetProjectByKeyCode(FName KeyCode) const;

	/** Empty while "No Selection" is chosen. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWProjectSelector")
	FProject GetSelectedProject() const { return SelectedProject; }

	/** Whether a selection has the project's information fetched anew even when it is there. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWProjectSelector")
	void SetUpdateInformationOnChange(bool bForce);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWProjectSelector")
	void OnRequestingUserProjectsProcess(bool bInProcess);

protected:
	//~ Begin UUserWidget
	virtual void NativeOnInitialized() override;
	virtual void NativePreConstruct() override;
	virtual void NativeConstruct() override;
	virtual void NativeDestruct() override;
	//~ End UUserWidget

	/** For the combo box's list. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWProjectSelector")
	UWidget* GenerateComboItemWidget(FString Item);

	/** For the combo box's face. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWProjectSelector")
	UWidget* GenerateComboContentWidget(FName Item);

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UEditableText> ProjectKeyCode;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UEditableText> ProjectName;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UComboBoxString> ProjectSelection;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UCheckBox> ForceUpdateCheckBox;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UVlmButton> SetAsDefault;

	/** Spelled so in the Blueprints that bind to it. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector", meta = (BindWidget))
	TObjectPtr<UVlmButton> CopyApyKey;

	/** The list last received. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWProjectSelector")
	TArray<FProject> UserProjectList;

private:
	UFUNCTION()
	void Received_ProjectsResponse(bool bSuccess, TArray<FProject> Projects);

	UFUNCTION()
	void Received_SelectionChanged(FString SelectedItem, ESelectInfo::Type SelectionType);

	UFUNCTION()
	void Received_SetAsDefaultApiKey(FName ButtonID);

	UFUNCTION()
	void Received_CopyApiKey(FName ButtonID);

	UFUNCTION()
	void Received_ForceUpdateChange(bool bIsChecked);

	void FillOptions();
	void SelectDefaultProject();
	FProject GetProjectByName(FName Name) const;
	void UpdateSelectedProject() const;

	FDelegateHandle ProjectsResponseHandle;
	FProject SelectedProject;
	bool bForceUpdateOnChange = false;
};
