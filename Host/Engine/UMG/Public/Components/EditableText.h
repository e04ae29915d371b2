// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "CoreMinimal.h"

#include "EditableText.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextChangedEvent, const FText&, Text);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);

/** One line of text to edit. While it shows, also a text set by code raises OnTextChanged when it is another one. */
UCLASS()
class UMG_API UEditableText : public UWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);

	/** The text never shows, and a snapshot does not tell it. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsPassword(bool InbIsPassword);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetHintText() const { return HintText; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetHintText(FText InHintText);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool GetIsReadOnly() const { return bIsReadOnly; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsReadOnly(bool InbIsReadyOnly);

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextChangedEvent OnTextChanged;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextCommittedEvent OnTextCommitted;

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
