// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ContentWidget.h"

#include "SizeBox.generated.h"

class SBox;

/** Gives its child a height, in Slate units. */
UCLASS()
class UMG_API USizeBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void SetMinDesiredHeight(float InMinDesiredHeight);
	float GetMinDesiredHeight() const { return MinDesiredHeight; }

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;

private:
	TSharedPtr<SBox> GetBox() const;

	UPROPERTY()
	bool bOverride_MinDesiredHeight = false;
	UPROPERTY()
	float MinDesiredHeight = 0.0f; // counts only while the flag is set
};
