// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Slate/WidgetTransform.h"
#include "VlmWidgetTransformFields.generated.h"

class UVlmNumberField;

/** Seven fields for how a widget is moved, scaled, sheared and turned. */
UCLASS(Abstract)
class VELMORANTPROUI_API UVlmWidgetTransformFields : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Whether all fields hold numbers; each that does not says so beside it. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Transform")
	bool CheckNumbers();

	/** What the fields hold; a field without number counts as 0. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Transform")
	FWidgetTransform GetTransform() const;

	UFUNCTION(BlueprintCallable, Category = "Velmorant|Transform")
	void SetTransform(const FWidgetTransform& InTransform);

	/** Leaves the fields empty. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Transform")
	void ClearTransform();

protected:
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> MoveX;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> MoveY;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> ScaleX;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> ScaleY;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> ShearX;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> ShearY;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Transform", meta = (BindWidget))
	TObjectPtr<UVlmNumberField> Angle;

private:
	TArray<UVlmNumberField*> GetFields() const { return {MoveX, MoveY, ScaleX, ScaleY, ShearX, ShearY, Angle}; }
};
