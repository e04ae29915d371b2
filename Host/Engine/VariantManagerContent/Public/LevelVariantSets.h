// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"
#include "UObject/Object.h"
#include "LevelVariantSets.generated.h"

class UVariantSet;
template<typename ElementType>
class TVariantList;

/** The asset that the Variant Manager edits: an ordered list of variant sets. */
UCLASS(BlueprintType)
class VARIANTMANAGERCONTENT_API ULevelVariantSets : public UObject
{
	GENERATED_BODY()

public:
	ULevelVariantSets(const FObjectInitializer& ObjectInitializer);
	virtual ~ULevelVariantSets() override;

	/**
	 * Takes the sets over: each gets this asset as its outer and leaves the asset it was in. One that is here already is moved.
	 * A newcomer whose text is taken here gets a unique one.
	 * @param Index where the first one goes, the others behind it; -1, or too large, appends
	 */
	void AddVariantSets(const TArray<UVariantSet*>& NewVariantSets, int32 Index = INDEX_NONE);

	/** Those that are here go to the transient package; others are ignored. */
	void RemoveVariantSets(const TArray<UVariantSet*> InVariantSets);

	const TArray<UVariantSet*>& GetVariantSets() const { return VariantSets; }

	UFUNCTION(BlueprintPure, Category = "LevelVariantSets")
	int32 GetNumVariantSets() { return VariantSets.Num(); }

	/** Null when there is no such index. */
	UFUNCTION(BlueprintPure, Category = "LevelVariantSets")
	UVariantSet* GetVariantSet(int32 VariantSetIndex);

	/** The first set whose display text is this, case aside; null when there is none. Takes the same time whatever their number. */
	UFUNCTION(BlueprintPure, Category = "LevelVariantSets")
	UVariantSet* GetVariantSetByName(FString VariantSetName);

	//~ Begin UObject
	virtual void PostLoad() override;
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	friend class UVariantSet;

	UPROPERTY()
	TArray<UVariantSet*> VariantSets;

	TUniquePtr<TVariantList<UVariantSet>> List; // works on VariantSets; never null
};
