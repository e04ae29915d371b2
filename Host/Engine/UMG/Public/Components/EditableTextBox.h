// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "CoreMinimal.h"

#include "EditableTextBox.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextBoxChangedEvent, const FText&, Text);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextBoxCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);

/** One line of text to edit, in a frame. */
UCLASS()
class UMG_API UEditableTextBox : public UWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsPassword(bool bInIsPassword);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetHintText(FText InHintText);

	/** Shows beside the text what is wrong with it. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetError(FText InError);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ClearError();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasError() const;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextBoxChangedEvent OnTextChanged;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextBoxCommittedEvent OnTextCommitted;

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	void HandleOnTextChanged(const FText& InText);
	void HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod);

private:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText HintText;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool bIsReadOnly = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool IsPassword = false;
};
