// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorWidgets/VlmEWMinimapTool.h"
#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"
#include "TestPanels.generated.h"

/** The list of duplicates as a Blueprint would use it: it keeps what it was told last. */
UCLASS()
class UVelmorantTestDuplicationList : public UVlmEWUnitVolumeDuplicationList
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<TObjectPtr<UVlmEWUnitVolumeDuplication_Item>> Items;

	//~ Begin UObject
	virtual void ProcessEvent(UFunction* Function, void* Parms) override;
	//~ End UObject
};

/** The minimap's panel without anything of its own. */
UCLASS()
class UVelmorantTestMinimapTool : public UVlmEWMinimapTool
{
	GENERATED_BODY()
};
