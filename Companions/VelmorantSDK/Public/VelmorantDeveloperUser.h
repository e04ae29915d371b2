// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "VelmorantUser.h"
#include "VelmorantDeveloperUser.generated.h"

/** The answer to a request for the developer's projects. Native: handlers are added with AddUObject and accumulate. */
DECLARE_MULTICAST_DELEGATE_TwoParams(FOnEditorProjectsResponse, bool /*bSuccess*/, TArray<FProject> /*Projects*/);

struct FVelmorantProjectsAnswer;

/** The user who works in the editor: knows the projects, which one is selected, and whether they also act when the model runs in the editor. */
UCLASS(BlueprintType)
class VELMORANTSDK_API UVelmorantDeveloperUser : public UVelmorantUser
{
	GENERATED_BODY()

public:
	/** The projects last received for this account; empty before the first successful request. */
	TArray<FProject> GetEditorUserProjects() const { return EditorUserProjects; }

	/** Asks the service for the projects; the answer arrives at GetOnProjectsResponse(), never within this call. */
	void RequestEditorUserProjects();

	/** Why the last request for the projects failed, and what to do; empty when it did not. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Developer")
	FText GetProjectsFailureText() const;

	/** Whether the project's default API key is that of none of the user's projects. False while these are not known. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Developer")
	bool IsDefaultApiKeyForeign() const;

	FOnEditorProjectsResponse& GetOnProjectsResponse() { return OnProjectsResponse; }

	/**
	 * Makes a project the one that the request manager serves.
	 * @param bForceUpdate fetch its data anew even when it is the project already selected.
	 */
	void SetSelectedProject(const FProject& Project, bool bForceUpdate);

	/** Whether user data is saved, in this session or an earlier one; GetUserInfo() holds what was saved from creation on. */
	virtual bool HasSavedUserData() const;

	/** Keeps the user information in the user's own configuration folder, readable by nobody else. */
	virtual void SaveUserData();

	/** Whether the running model, which has no user of its own then, acts as this one; until the editor closes. */
	bool ShouldUseAtRuntime() const { return bUseAtRuntime; }
	void SetDevAsRuntimeUser(bool bInUseAtRuntime) { bUseAtRuntime = bInUseAtRuntime; }

	virtual void PostInitProperties() override;

protected:
	virtual void HandleLoggedIn() override;
	virtual void HandleAccountLeft() override;

private:
	void ReceiveProjects(const FVelmorantProjectsAnswer& Answer);

	FOnEditorProjectsResponse OnProjectsResponse;
	TArray<FProject> EditorUserProjects;
	EVelmorantFailure ProjectsFailure{};
	bool bProjectsKnown = false;
	int32 NumAccountsLeft = 0; // tells answers for the account from those for one before
	bool bHasSavedUserData = false;
	bool bUseAtRuntime = false;
};
