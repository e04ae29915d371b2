// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"
#include "UObject/Object.h"
#include "VariantSet.generated.h"

class ULevelVariantSets;
class UVariant;
template<typename ElementType>
class TVariantList;

/** An ordered choice between variants. Its display text is its name. */
UCLASS(BlueprintType)
class VARIANTMANAGERCONTENT_API UVariantSet : public UObject
{
	GENERATED_BODY()

public:
	UVariantSet(const FObjectInitializer& ObjectInitializer);
	virtual ~UVariantSet() override;

	/** The asset it is in, which is its outer; null while it is in none. */
	ULevelVariantSets* GetParent();

	/** Two sets of one asset may end up with the same text: nothing is checked. */
	UFUNCTION(BlueprintCallable, Category = "VariantSet")
	void SetDisplayText(const FText& NewDisplayText);

	UFUNCTION(BlueprintPure, Category = "VariantSet")
	FText GetDisplayText() const { return DisplayText; }

	/**
	 * Takes the variants over: each gets this set as its outer and leaves the set it was in. One that is here already is moved.
	 * A newcomer whose text is taken here gets a unique one.
	 * @param Index where the first one goes, the others behind it; -1, or too large, appends
	 */
	void AddVariants(const TArray<UVariant*>& NewVariants, int32 Index = INDEX_NONE);

	/** Those that are here go to the transient package; others are ignored. */
	void RemoveVariants(const TArray<UVariant*>& InVariants);

	const TArray<UVariant*>& GetVariants() const { return Variants; }

	/** -1 when it is not in this set. */
	int32 GetVariantIndex(UVariant* Variant);

	UFUNCTION(BlueprintPure, Category = "VariantSet")
	int32 GetNumVariants() { return Variants.Num(); }

	/** The first variant whose display text is this, case aside; null when there is none. Takes the same time whatever their number. */
	UFUNCTION(BlueprintPure, Category = "VariantSet")
	UVariant* GetVariantByName(FString VariantName);

	//~ Begin UObject
	virtual void PostLoad() override;
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	friend class UVariant;

	void TellParent();

	UPROPERTY()
	FText DisplayText;

	UPROPERTY()
	TArray<UVariant*> Variants;

	TUniquePtr<TVariantList<UVariant>> List; // works on Variants; never null
};
