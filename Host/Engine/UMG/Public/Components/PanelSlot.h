// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Visual.h"
#include "CoreMinimal.h"

#include "PanelSlot.generated.h"

class UPanelWidget;
class UWidget;

/** One place in a panel. */
UCLASS(BlueprintType)
class UMG_API UPanelSlot : public UVisual
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UPanelWidget> Parent;

	UPROPERTY()
	TObjectPtr<UWidget> Content;

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;
};
