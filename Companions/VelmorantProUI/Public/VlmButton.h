// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Styling/SlateTypes.h"
#include "VlmButton.generated.h"

class UVlmButton;

/** A click, with the identifier of the button. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnVlmButtonClicked, FName, ButtonID);

/** A change of the selection state: which button, and its new state. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnVlmButtonSelectionChanged, UVlmButton*, ButtonChanged, bool, bSelected);

/** The toolkit's button: has an identifier and a label, and can stay selected, which shows. */
UCLASS()
class VELMORANTPROUI_API UVlmButton : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Velmorant|Button")
	FOnVlmButtonClicked OnButtonClicked;

	UPROPERTY(BlueprintAssignable, Category = "Velmorant|Button")
	FOnVlmButtonSelectionChanged OnSelectionStateChanged;

	/** Passed on with every click. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Button")
	FName ButtonID;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Button")
	FText Label;

	/** A click toggles the selection state as well. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Button")
	bool bSelectable = false;

	UFUNCTION(BlueprintCallable, Category = "Velmorant|Button")
	void SetLabel(const FText& InLabel);

	/** Nothing happens when the state is already so. @param bBroadcast whether a change raises OnSelectionStateChanged. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Button")
	void SetSelectionState(bool bInSelected, bool bBroadcast);

	UFUNCTION(BlueprintPure, Category = "Velmorant|Button")
	bool IsButtonSelected() const { return bSelected; }

protected:
	//~ Begin UWidget
	virtual TSharedRef<SWidget> RebuildWidget() override;
	//~ End UWidget

private:
	void HandleClicked(ECheckBoxState ClickedState);
	ECheckBoxState GetCheckState() const;
	FText GetLabel() const { return Label; }

	bool bSelected = false;
};
