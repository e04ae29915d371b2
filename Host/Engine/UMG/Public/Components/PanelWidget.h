// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelSlot.h"
#include "Components/Widget.h"
#include "CoreMinimal.h"

#include "PanelWidget.generated.h"

/** A widget with children, in order. A child that is added leaves the panel it was in. */
UCLASS(Abstract)
class UMG_API UPanelWidget : public UWidget
{
	GENERATED_BODY()

public:
	/** Null for an index that is none. */
	UFUNCTION(BlueprintCallable, Category = "Panel")
	UWidget* GetChildAt(int32 Index) const;

	UFUNCTION(BlueprintCallable, Category = "Panel")
	TArray<UWidget*> GetAllChildren() const;

	/** INDEX_NONE for a widget that is no child. */
	UFUNCTION(BlueprintCallable, Category = "Panel")
	int32 GetChildIndex(const UWidget* Content) const;

	/** @return null when there is nothing to add, or no room: a content widget holds one child. */
	UFUNCTION(BlueprintCallable, Category = "Panel")
	UPanelSlot* AddChild(UWidget* Content);

	UFUNCTION(BlueprintCallable, Category = "Panel")
	bool RemoveChild(UWidget* Content);

	UFUNCTION(BlueprintCallable, Category = "Panel")
	bool RemoveChildAt(int32 Index);

	UFUNCTION(BlueprintCallable, Category = "Panel")
	void ClearChildren();

	bool CanAddMoreChildren() const { return CanHaveMultipleChildren() || Slots.Num() == 0; }
	virtual bool CanHaveMultipleChildren() const { return true; }

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Host: for those who put widgets together from data. */
	UClass* GetSlotClassForHost() const { return GetSlotClass(); }

protected:
	/** What holds each child: how it can lie in this panel. */
	virtual UClass* GetSlotClass() const;

	/** Brings the Slate widget, if there is one, in step with the slots. */
	virtual void RefreshChildren() {}

	UPROPERTY()
	TArray<TObjectPtr<UPanelSlot>> Slots;
};
