// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "UObject/Object.h"
#include "ListDisplayerItemBase.generated.h"

/** What a row of the list displayer stands for. */
UENUM(BlueprintType)
enum EListDisplayItemType : int
{
	ELDIT_UnitGroup = 0 UMETA(DisplayName = "UnitGroup"),
	ELDIT_Unit = 1 UMETA(DisplayName = "Unit"),
	ELDIT_Configurator = 2 UMETA(DisplayName = "Configurator")
};

/** One row of the list displayer. */
UCLASS(BlueprintType)
class VELMORANTPROEDITOR_API UListDisplayerItemBase : public UObject
{
	GENERATED_BODY()

public:
	/** Makes a row in the transient package. */
	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|ListDisplayerItemBase")
	static UListDisplayerItemBase* CreateListDisplayerItemBase(int32 InUnitID, const FString& InKeycode, const FString& InDisplayName, TEnumAsByte<EListDisplayItemType> InItemBaseType);

	/** The service's number for the unit; -1 for rows that are no unit. */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|ListDisplayerItemBase")
	int32 UnitID = -1;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|ListDisplayerItemBase")
	FString Keycode;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|ListDisplayerItemBase")
	FString DisplayName;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|ListDisplayerItemBase")
	TEnumAsByte<EListDisplayItemType> ItemBaseType = ELDIT_UnitGroup;
};
