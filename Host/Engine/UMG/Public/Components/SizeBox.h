// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ContentWidget.h"

#include "SizeBox.generated.h"

class SBox;

/** Gives its child a size, in Slate units. */
UCLASS()
class UMG_API USizeBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void SetWidthOverride(float InWidthOverride);
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void ClearWidthOverride();
	float GetWidthOverride() const { return WidthOverride; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void SetHeightOverride(float InHeightOverride);
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void ClearHeightOverride();
	float GetHeightOverride() const { return HeightOverride; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void SetMinDesiredWidth(float InMinDesiredWidth);
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void ClearMinDesiredWidth();
	float GetMinDesiredWidth() const { return MinDesiredWidth; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void SetMinDesiredHeight(float InMinDesiredHeight);
	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	void ClearMinDesiredHeight();
	float GetMinDesiredHeight() const { return MinDesiredHeight; }

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void RefreshChildren() override;

private:
	TSharedPtr<SBox> GetBox() const;

	UPROPERTY()
	bool bOverride_WidthOverride = false;
	UPROPERTY()
	bool bOverride_HeightOverride = false;
	UPROPERTY()
	bool bOverride_MinDesiredWidth = false;
	UPROPERTY()
	bool bOverride_MinDesiredHeight = false;

	// Each counts only while its override flag is set.
	UPROPERTY()
	float WidthOverride = 0.0f;
	UPROPERTY()
	float HeightOverride = 0.0f;
	UPROPERTY()
	float MinDesiredWidth = 0.0f;
	UPROPERTY()
	float MinDesiredHeight = 0.0f;
};
