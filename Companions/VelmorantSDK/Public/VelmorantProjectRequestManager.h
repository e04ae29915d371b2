// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "VelmorantProjectRequestManager.generated.h"

class UProjectWrapper;
struct FVelmorantConfiguratorRecord;
struct FVelmorantProjectAnswer;

/** A service request has finished. Native multicast: the same handler added twice is called twice. */
DECLARE_MULTICAST_DELEGATE_TwoParams(FOnUpdateRequest, EUpdateRequestDataType, EUpdateRequestType);

/** Fetches the selected project's data and keeps it in wrappers. One per user. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UVelmorantProjectRequestManager : public UObject
{
	GENERATED_BODY()

public:
	/** The selected project, or null when none is selected. */
	UProjectWrapper* GetProjectWrapper() const { return ProjectWrapper; }

	/** Raised after the wrappers hold the new data. */
	FOnUpdateRequest& GetOnUpdateRequest() { return OnUpdateRequest; }

	/** Makes the project the selected one and fetches its data; see UVelmorantDeveloperUser::SetSelectedProject(). */
	void SelectProject(const FProject& Project, bool bForceUpdate);

	/** No project is selected any more. Told as new project data, if there was one; answers that are still to come are dropped. */
	void ClearProject();

	/** Makes the unit group with that key code the target; unknown key codes are ignored. */
	void SetSelectedUnitGroup(FName KeyCode);

	/** Asks the service for one configurator's data; ends in GetOnUpdateRequest() with EUpdateRequestDataType::ConfiguratorData. */
	void RequestConfigurator(FName ConfiguratorName, EUpdateRequestType RequestType);

private:
	void RequestProjectData();
	void ReceiveProjectData(const FVelmorantProjectAnswer& Answer);
	void ReceiveConfigurator(const TOptional<FVelmorantConfiguratorRecord>& Record, EUpdateRequestType RequestType);

	/** The token of the user that this manager belongs to. */
	const FString& GetToken() const;

	FOnUpdateRequest OnUpdateRequest;

	UPROPERTY()
	TObjectPtr<UProjectWrapper> ProjectWrapper;
};
