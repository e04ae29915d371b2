// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Components/EditableTextBox.h"
#include "VlmNumberField.generated.h"

/**
 * The toolkit's field for a number: digits with a sign and a point, and blanks around it. What is entered and is none stays there, and
 * the field says beside it what is wrong.
 */
UCLASS()
class VELMORANTPROUI_API UVlmNumberField : public UEditableTextBox
{
	GENERATED_BODY()

public:
	/** Takes whole numbers of 32 bits only. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Number")
	bool bWhole = false;

	/** Whether there is a number in the field; if not, says so beside it. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Number")
	bool CheckNumber();

	/** 0 when there is none. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Number")
	double GetNumber() const;

	/** The number without what comes behind its point. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Number")
	int32 GetWholeNumber() const { return static_cast<int32>(GetNumber()); }

	/** Shows the digits that tell the number from its neighbours, and no more. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Number")
	void SetNumber(double InNumber);

	/** The same for a number of single precision, whose neighbours are further off. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Number")
	void SetSingleNumber(float InNumber);

	/** Leaves the field empty. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Number")
	void ClearNumber();

protected:
	//~ Begin UWidget
	virtual TSharedRef<SWidget> RebuildWidget() override;
	//~ End UWidget

private:
	/** Unset, with what is wrong, when the text is no number. */
	TOptional<double> ReadNumber(FText& OutError) const;

	void SetDigits(const FString& Digits);

	UFUNCTION()
	void ReceivedTextCommitted(const FText& InText, ETextCommit::Type CommitMethod);
};
