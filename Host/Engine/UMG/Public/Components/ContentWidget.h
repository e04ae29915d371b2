// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelWidget.h"
#include "Widgets/SNullWidget.h"

#include "ContentWidget.generated.h"

/** A panel with one child. */
UCLASS(Abstract)
class UMG_API UContentWidget : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Replaces the child. Null leaves the widget empty. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UPanelSlot* SetContent(UWidget* Content);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UWidget* GetContent() const;

	virtual bool CanHaveMultipleChildren() const override { return false; }

protected:
	TSharedRef<SWidget> TakeContent() const;
};
