// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantConfiguratorTypes.h"
#include "VelmorantSDKTypes.h"
#include "ConfiguratorWrapper.generated.h"

/** One configurator of the selected project. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UConfiguratorWrapper : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, Category = "Velmorant|Configurator")
	FName GetConfiguratorName() const { return ConfiguratorName; }

	/** The unit records by configurator name. */
	const TMap<FName, FVelmorantConfigUnit>& GetConfigtorUnitCollection() const { return UnitCollection; }

	/** The unit groups that the configurator applies to, in the service's order. */
	const TArray<FVelmorantConfiguratorUnitGroup>& GetConfigtorUnitGroupCollection() const { return UnitGroupCollection; }

	/** The names of those unit groups, for people. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Configurator")
	FString GetUnitGroupNames() const;

	/**
	 * Asks the service to refresh this configurator.
	 * The request manager's update event tells when the data has arrived, never within this call.
	 */
	virtual void RequestUpdateData(EUpdateRequestDataType DataType, EUpdateRequestType RequestType);

private:
	friend class UVelmorantProjectRequestManager;

	FName ConfiguratorName;
	TMap<FName, FVelmorantConfigUnit> UnitCollection;
	TArray<FVelmorantConfiguratorUnitGroup> UnitGroupCollection;
};
