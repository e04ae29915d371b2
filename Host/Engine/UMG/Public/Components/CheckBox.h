// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ContentWidget.h"
#include "Styling/SlateTypes.h"

#include "CheckBox.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnCheckBoxComponentStateChanged, bool, bIsChecked);

/** A box to tick; its child is its label. Setting the state by code raises nothing. */
UCLASS()
class UMG_API UCheckBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	ECheckBoxState GetCheckedState() const { return CheckedState; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsChecked(bool InIsChecked);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetCheckedState(ECheckBoxState InCheckedState);

	UPROPERTY(BlueprintAssignable, Category = "CheckBox|Event")
	FOnCheckBoxComponentStateChanged OnCheckStateChanged;

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;

	void SlateOnCheckStateChangedCallback(ECheckBoxState NewState);

private:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	ECheckBoxState CheckedState = ECheckBoxState::Unchecked;
};
