// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "VelmorantUser.generated.h"

class UVelmorantProjectRequestManager;
struct FVelmorantLoginAnswer;

/** The answer to a login: whether it succeeded and, if so, who signed in. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FLoginResult, bool, bSuccess, FLoginInfo, LoginInfo);

/**
 * A user of the online service: credentials, login state and the requests made in their name.
 *
 * Owned by the engine subsystem. Game thread only; answers arrive later on the same thread.
 */
UCLASS(BlueprintType)
class VELMORANTSDK_API UVelmorantUser : public UObject
{
	GENERATED_BODY()

public:
	/** Sends a login. The information becomes GetUserInfo(); the answer arrives at GetOnLoginResult(). Empty credentials are sent as they are and refused by the service. */
	void RequestUserLogin(const FVelmorantUserInformation& InUserInformation);

	/** Gives the token up and all that was received with it. What is remembered of the user stays remembered. */
	void RequestUserLogout();

	/** Whether the user holds a login token that has not expired. */
	bool HasValidToken() const;

	/** The last login request, or what was remembered of an earlier session. */
	FVelmorantUserInformation GetUserInfo() const { return UserInformation; }

	/** Who is signed in; an empty record when nobody is. */
	FLoginInfo GetUserLoginInfo() const { return LoginInfo; }

	/** Never null: made with the user. */
	UVelmorantProjectRequestManager* GetProjectRequestManager() const;

	FLoginResult& GetOnLoginResult() { return OnLoginResult; }

	virtual void PostInitProperties() override;

	/** The token as the service gave it; empty when signed out. Requests carry it. */
	const FString& GetToken() const { return Token; }

protected:
	/** Called after a successful login, before the result is told. */
	virtual void HandleLoggedIn() {}

	/** Called when the account is left: at a logout, and before another account's login is told. What was received for it goes. */
	virtual void HandleAccountLeft();

	FVelmorantUserInformation UserInformation;

private:
	void ReceiveLoginAnswer(const FVelmorantLoginAnswer& Answer, const FString& UserName);

	UPROPERTY(BlueprintAssignable)
	FLoginResult OnLoginResult;

	UPROPERTY()
	TObjectPtr<UVelmorantProjectRequestManager> ProjectRequestManager;

	FLoginInfo LoginInfo;
	FString Account; // user name of the last successful login; empty after a logout
	FString Token;
	int32 NumLogouts = 0; // tells answers to logins from those that a logout came after
	double TokenExpiry = 0.0; // seconds on the application's clock
};
