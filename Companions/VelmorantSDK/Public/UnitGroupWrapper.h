// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "UnitGroupWrapper.generated.h"

/** One unit group of the selected project, with its units. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UUnitGroupWrapper : public UObject
{
	GENERATED_BODY()

public:
	const FUnitGroupData& GetUnitGroupData() const { return UnitGroupData; }

	/** A copy, in the service's order. */
	TArray<FUnitData> GetUnitListData() const { return Units; }

private:
	friend class UVelmorantProjectRequestManager;

	FUnitGroupData UnitGroupData;
	TArray<FUnitData> Units;
};
