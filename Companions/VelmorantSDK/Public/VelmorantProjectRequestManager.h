// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "VelmorantProjectRequestManager.generated.h"

class UProjectWrapper;
class UVelmorantUser;
enum class EVelmorantFailure : uint8;
struct FVelmorantConfiguratorAnswer;
struct FVelmorantProjectAnswer;

/** A service request has finished. Native multicast: the same handler added twice is called twice. */
DECLARE_MULTICAST_DELEGATE_TwoParams(FOnUpdateRequest, EUpdateRequestDataType, EUpdateRequestType);

/** A request for the selected project's data has begun or ended, or another project was selected; the manager tells how things are. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FVelmorantProjectDataEvent);

/** Fetches the selected project's data and keeps it in wrappers. One per user. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UVelmorantProjectRequestManager : public UObject
{
	GENERATED_BODY()

public:
	/** The selected project, or null when none is selected. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	UProjectWrapper* GetProjectWrapper() const { return ProjectWrapper; }

	/** Raised after the wrappers hold the new data. */
	FOnUpdateRequest& GetOnUpdateRequest() { return OnUpdateRequest; }

	/**
	 * Makes the project the selected one and fetches its data; see UVelmorantDeveloperUser::SetSelectedProject(). Another project than
	 * before is told at once as new project data, so that lists become empty, and once more when it has arrived. The same project is
	 * fetched again when its data could not be fetched before.
	 */
	void SelectProject(const FProject& Project, bool bForceUpdate);

	/** Fetches the selected project's data anew; nothing without one, or while its data is on the way. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Project")
	void RefreshProject();

	/** After a login: fetches what the session before could not. */
	void Resume();

	/** Empty when none is selected. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	FString GetSelectedProjectName() const;

	/** Whether the selected project's data has arrived, now or earlier. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	bool HasProjectData() const;

	/** Whether the selected project's data is on the way. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	bool IsRequestingProjectData() const { return NumProjectRequests > 0; }

	/** Why the last request for the selected project's data failed, and what to do; empty when it did not. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Project")
	FText GetProjectDataFailureText() const;

	UPROPERTY(BlueprintAssignable, Category = "Velmorant|Project")
	FVelmorantProjectDataEvent OnProjectDataRequest;

	/** No project is selected any more. Told as new project data, if there was one; answers that are still to come are dropped. */
	void ClearProject();

	/** Makes the unit group with that key code the target; unknown key codes are ignored. */
	void SetSelectedUnitGroup(FName KeyCode);

	/** Asks the service for one configurator's data; ends in GetOnUpdateRequest() with EUpdateRequestDataType::ConfiguratorData. */
	void RequestConfigurator(FName ConfiguratorName, EUpdateRequestType RequestType);

private:
	void RequestProjectData();
	void ReceiveProjectData(const FVelmorantProjectAnswer& Answer);
	void ReceiveConfigurator(const FVelmorantConfiguratorAnswer& Answer, EUpdateRequestType RequestType);

	/** Another project, or none: nothing is known of requests for it. */
	void SetProjectWrapper(UProjectWrapper* InProjectWrapper);

	/** The user that this manager belongs to. */
	UVelmorantUser& GetUser() const;

	FOnUpdateRequest OnUpdateRequest;
	EVelmorantFailure ProjectFailure{};
	int32 NumProjectRequests = 0; // for the selected project's data, unanswered

	UPROPERTY()
	TObjectPtr<UProjectWrapper> ProjectWrapper;
};
