// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "UObject/WeakObjectPtr.h"
#include "VlmEWUnitVolumeDuplicationList.generated.h"

class AActor;
class AUnitVolumeActor;

/** Unit volumes that carry the same identifier. */
UCLASS(BlueprintType)
class VELMORANTPROEDITOR_API UVlmEWUnitVolumeDuplication_Item : public UObject
{
	GENERATED_BODY()

public:
	/** The key code of the clashing volumes. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWUnitVolumeDuplication_Item")
	FName Identifier;

	/** Each once, in the order in which they were found. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWUnitVolumeDuplication_Item")
	TArray<TObjectPtr<AActor>> DuplicateActors;
};

/** Finds unit volumes of the level that the running model could not tell apart. */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWUnitVolumeDuplicationList : public UUserWidget
{
	GENERATED_BODY()

public:
	/**
	 * Looks for clashes and hands all groups found so far to OnDuplicationsList(). A group is reported until the widget is closed,
	 * also after its clash has been repaired.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWUnitVolumeDuplicationList")
	void CheckForDuplications();

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWUnitVolumeDuplicationList")
	void OnDuplicationsList(const TArray<UVlmEWUnitVolumeDuplication_Item*>& Items);

private:
	/** Volumes that clash, in the order in which they came: a set keeps it while nothing is removed. Weak: the level may be closed before the widget. */
	using FGroup = TSet<TWeakObjectPtr<AUnitVolumeActor>>;

	TArray<AUnitVolumeActor*> FindVolumes() const;
	void GroupClashes(const TArray<AUnitVolumeActor*>& Volumes);
	TArray<UVlmEWUnitVolumeDuplication_Item*> MakeItems() const;

	/** By key code. Never emptied. */
	TMap<FName, FGroup> Groups;
};
