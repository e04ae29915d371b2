// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ComboBoxString.h"
#include "CoreMinimal.h"
#include "EditorUtilityWidget.h"
#include "Blueprint/IUserObjectListEntry.h"

#include "TestToolPanel.generated.h"

/** The outermost panel of a tab. */
UCLASS(Abstract)
class UTestToolPanel : public UEditorUtilityWidget
{
	GENERATED_BODY()

public:
	/** Closes its own tab. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	void CloseMyTab();

	/** For combo boxes, if Blueprints could call it. */
	UFUNCTION()
	UWidget* MakeSecretWidget(FString Item) { return Item.IsEmpty() ? nullptr : this; }

	static int32 NumDestructed;

protected:
	virtual void NativeDestruct() override;
};

/** An item of a list. */
UCLASS()
class UTestListItem : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "Test")
	FString DisplayName;

	/** Not for Blueprints. */
	UPROPERTY()
	int32 Price = 7;
};

/** Shows one item of a list. */
UCLASS(Abstract)
class UTestListEntry : public UUserWidget, public IUserObjectListEntry
{
	GENERATED_BODY()
};

/** Listens to a combo box and makes its option widgets. */
UCLASS()
class UTestComboListener : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void ReceivedSelection(FString SelectedItem, ESelectInfo::Type SelectionType);

	UFUNCTION()
	UWidget* MakeOption(FString Item);

	UPROPERTY()
	TObjectPtr<UComboBoxString> Combo;

	TArray<FString> Heard;
};
