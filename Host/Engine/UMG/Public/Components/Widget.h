// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/SlateWrapperTypes.h"
#include "Components/Visual.h"
#include "CoreMinimal.h"

#include "Widget.generated.h"

class SObjectWidget;
class SWidget;
class UPanelSlot;
class UPanelWidget;

/**
 * A widget as an object: it holds the values and makes its Slate widget from them when it is shown.
 * Setters work before and after that.
 */
UCLASS(Abstract, BlueprintType, Blueprintable)
class UMG_API UWidget : public UVisual
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool GetIsEnabled() const { return bIsEnabled; }

	/** A disabled widget, and all in it, takes no input. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	virtual void SetIsEnabled(bool bInIsEnabled);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetToolTipText(const FText& InToolTipText);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	ESlateVisibility GetVisibility() const { return Visibility; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	virtual void SetVisibility(ESlateVisibility InVisibility);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsVisible() const;

	/** The panel that it is in; null for a root. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UPanelWidget* GetParent() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	virtual void RemoveFromParent();

	/** The Slate widget, made on first use and again after it was released. A user widget's is wrapped so that it keeps its object alive. */
	TSharedRef<SWidget> TakeWidget();

	/** What TakeWidget() returned, while anybody holds it. */
	TSharedPtr<SWidget> GetCachedWidget() const;

	/** Hands all values to the Slate widget. */
	virtual void SynchronizeProperties();

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Host: there is no widget designer. */
	bool IsDesignTime() const { return false; }

	static EVisibility ConvertSerializedVisibilityToRuntime(ESlateVisibility Input);

	/** How it lies in its parent; null for a root. */
	UPROPERTY(BlueprintReadOnly, Category = "Layout")
	TObjectPtr<UPanelSlot> Slot;

	/** Whether it has a name of its own, by which others find it. */
	UPROPERTY()
	bool bIsVariable = false;

protected:
	virtual TSharedRef<SWidget> RebuildWidget();
	virtual void OnWidgetRebuilt() {}

	TWeakPtr<SWidget> MyWidget;
	TWeakPtr<SObjectWidget> MyGCWidget; // set for user widgets only

private:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (AllowPrivateAccess = "true"))
	FText ToolTipText;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (AllowPrivateAccess = "true"))
	bool bIsEnabled = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (AllowPrivateAccess = "true"))
	ESlateVisibility Visibility = ESlateVisibility::Visible;
};
