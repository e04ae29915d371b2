// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Variant.generated.h"

class UVariantSet;

/** One of the choices of a variant set. Its display text is its name. */
UCLASS(BlueprintType)
class VARIANTMANAGERCONTENT_API UVariant : public UObject
{
	GENERATED_BODY()

public:
	UVariant(const FObjectInitializer& ObjectInitializer);

	/** The set it is in, which is its outer; null while it is in none. */
	UVariantSet* GetParent();

	/** Two variants of one set may end up with the same text: nothing is checked. */
	UFUNCTION(BlueprintCallable, Category = "Variant")
	void SetDisplayText(const FText& NewDisplayText);

	UFUNCTION(BlueprintPure, Category = "Variant")
	FText GetDisplayText() const { return DisplayText; }

	//~ Begin UObject
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	void TellParent();

	UPROPERTY()
	FText DisplayText;
};
