// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorWidgets/ListDisplayerItemBase.h"
#include "EditorWidgets/VlmEWPanelData.h"
#include "Types/SlateEnums.h"
#include "VelmorantSDKTypes.h"
#include "VlmEWListDisplayer.generated.h"

class FVelmorantTextSearch;
class UComboBoxString;
class UEditableText;
class UListView;
class UVelmorantProjectRequestManager;
class UVlmButton;

/** Browses the selected project: its unit groups, the units of the target unit group, the unit groups of its configurators. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWListDisplayer : public UVlmEWPanelData
{
	GENERATED_BODY()

public:
	//~ Begin IVlmEditorPanelInterface
	virtual void ActivateDataPanel_Implementation() override;
	//~ End IVlmEditorPanelInterface

	/** Empties the search text and shows all rows again. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void ClearSearchText();

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void DisplayUnitGroups();

	/** Leaves the level as it is: the next update shows that level again. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void DisplayUnitsFromUnitGroupTarget();

	/** Leaves the level as it is: the next update shows that level again. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void DisplayConfiguratorFromUnitGroupTarget();

	/** Empty without a target. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWListDisplayer")
	FString GetUnitGroupTargetName() const;

	/** A selected project is one with an API key. */
	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWListDisplayer")
	bool IsProjectSelected() const;

	UFUNCTION(BlueprintPure, Category = "Editor|Velmorant|VlmEWListDisplayer")
	bool IsUnitGroupTarget() const;

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void SetNavBarButtons(const TArray<UVlmButton*>& InNavBarButtons);

	/** Does nothing for an index that no button has. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void SetNavBarByIndex(int32 InIndex);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void OnListCountChange(int32 ListCount);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void OnModeSelectionChange(const FString& ModeName);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void OnNavBarButtonChanged(int32 Index);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWListDisplayer")
	void OnSelectionTypeChange(EListDisplayItemType InSelectionItemType);

protected:
	//~ Begin UUserWidget
	virtual void NativeConstruct() override;
	//~ End UUserWidget

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer", meta = (BindWidget))
	TObjectPtr<UVlmButton> HomeButton;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer", meta = (BindWidget))
	TObjectPtr<UVlmButton> SubSelectionButton;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer", meta = (BindWidget))
	TObjectPtr<UComboBoxString> ModeSelector;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer", meta = (BindWidget))
	TObjectPtr<UEditableText> SearchText;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer", meta = (BindWidget))
	TObjectPtr<UListView> ItemList;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer")
	TArray<TObjectPtr<UVlmButton>> NavButtonList;

	/** All rows, unfiltered. Spelled so in the Blueprints that bind to it. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWListDisplayer")
	TArray<TObjectPtr<UListDisplayerItemBase>> CurrentElemetsList;

private:
	/** The levels that RefreshListView() knows. No native path enters the configurators' one: the Blueprint shows them itself. */
	enum ESelectionLevel : int32
	{
		UnitGroupLevel = 0,
		UnitLevel = 1,
		ConfiguratorLevel = 3
	};

	UFUNCTION()
	void Received_NavBarButtonChange(UVlmButton* ButtonChanged, bool bSelected);

	UFUNCTION()
	void ReceivedHomeButtonClicked(FName ButtonID);

	UFUNCTION()
	void ReceivedModeSelectorChange(FString SelectedItem, ESelectInfo::Type SelectionType);

	UFUNCTION()
	void ReceivedSearchTextChange(const FText& Text);

	void Received_UpdateRequestData(EUpdateRequestDataType DataType, EUpdateRequestType RequestType);
	void ReceivedItemClicked(UObject* Item);

	void RefreshListView();
	void ResetCurrentSelectionLevel();
	void SetUnitGroupList();
	void SetUnitList();
	void SetConfiguratorList();
	void ShowRows(EListDisplayItemType Type);
	void RaiseListCount();

	UVelmorantProjectRequestManager* GetRequestManager() const;

	int32 CurrentSelectionLevel = UnitGroupLevel;
	TSharedPtr<FVelmorantTextSearch> Search; // of CurrentElemetsList; null until somebody searches in it
};
