// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ContentWidget.h"
#include "Input/Reply.h"

#include "Button.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonClickedEvent);

/** A button; its child is its label. */
UCLASS()
class UMG_API UButton : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonClickedEvent OnClicked;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;

	FReply SlateHandleClicked();
};
