// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelWidget.h"

#include "HorizontalBox.generated.h"

/** Children side by side. */
UCLASS()
class UMG_API UHorizontalBox : public UPanelWidget
{
	GENERATED_BODY()

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;
	virtual UClass* GetSlotClass() const override;
};
