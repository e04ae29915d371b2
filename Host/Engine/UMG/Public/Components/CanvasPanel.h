// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelWidget.h"

#include "CanvasPanel.generated.h"

/** Children anywhere. Host: nothing is laid out, so they only have their order. */
UCLASS()
class UMG_API UCanvasPanel : public UPanelWidget
{
	GENERATED_BODY()

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;
};
