// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"

#include "Throbber.generated.h"

/** Moves while something is going on. */
UCLASS()
class UMG_API UThrobber : public UWidget
{
	GENERATED_BODY()

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
};
