// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelWidget.h"

#include "VerticalBox.generated.h"

/** Children one below the other. */
UCLASS()
class UMG_API UVerticalBox : public UPanelWidget
{
	GENERATED_BODY()

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;
	virtual UClass* GetSlotClass() const override;
};
