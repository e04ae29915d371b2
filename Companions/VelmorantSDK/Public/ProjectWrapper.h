// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "ProjectWrapper.generated.h"

class UConfiguratorWrapper;
class UUnitGroupWrapper;

/** The selected project as last received from the service. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UProjectWrapper : public UObject
{
	GENERATED_BODY()

public:
	const FProject& GetProjectData() const { return ProjectData; }

	/** In the service's order. */
	TArray<FUnitGroupData> GetUnitGroupListData() const;

	bool HasUnitGroupTarget() const { return UnitGroupTarget != nullptr; }

	/** The unit group selected as target, or null. */
	UUnitGroupWrapper* GetUnitGroupTarget() const { return UnitGroupTarget; }

	/** In the service's order. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	TArray<UConfiguratorWrapper*> GetConfigurators() const;

	/** The configurator of that name (names ignore case), or null. */
	UConfiguratorWrapper* GetConfiguratorByName(const FName& ConfiguratorName) const;

private:
	friend class UVelmorantProjectRequestManager;

	FProject ProjectData;

	UPROPERTY()
	TArray<TObjectPtr<UUnitGroupWrapper>> UnitGroups;

	UPROPERTY()
	TArray<TObjectPtr<UConfiguratorWrapper>> Configurators;

	UPROPERTY()
	TObjectPtr<UUnitGroupWrapper> UnitGroupTarget;

	bool bFetched = false; // the service has sent the data at least once
};
