// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Ticker.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.h"
#include "VelmorantUser.generated.h"

class UVelmorantProjectRequestManager;
enum class EVelmorantFailure : uint8;
struct FVelmorantLoginAnswer;

/** The answer to a login: whether it succeeded and, if so, who signed in. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FLoginResult, bool, bSuccess, FLoginInfo, LoginInfo);

/** Something has changed about who is signed in; the user tells what. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FVelmorantUserEvent);

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
	UFUNCTION(BlueprintPure, Category = "Velmorant|User")
	bool HasValidToken() const;

	/** The name that was signed in with last: still there when the session has ended, empty after a logout. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|User")
	FString GetAccount() const { return Account; }

	/** Whether a login has not been answered yet. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|User")
	bool IsLoginInProcess() const { return NumLoginsInProcess > 0; }

	/** Why the last login failed, and what to do; empty when it did not. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|User")
	FText GetLoginFailureText() const;

	/** The last login request, or what was remembered of an earlier session. */
	FVelmorantUserInformation GetUserInfo() const { return UserInformation; }

	/** Who is signed in; an empty record when nobody is. */
	FLoginInfo GetUserLoginInfo() const { return LoginInfo; }

	/** Never null: made with the user. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|User")
	UVelmorantProjectRequestManager* GetProjectRequestManager() const;

	FLoginResult& GetOnLoginResult() { return OnLoginResult; }

	/** Somebody signed in or out, or the session ended: at the end of the token's time, or when the service refused it. Ahead of OnLoginResult. */
	UPROPERTY(BlueprintAssignable, Category = "Velmorant|User")
	FVelmorantUserEvent OnSessionChanged;

	/** A logout, or another account's login: what was shown of the one before has to go. Ahead of OnSessionChanged. */
	UPROPERTY(BlueprintAssignable, Category = "Velmorant|User")
	FVelmorantUserEvent OnAccountLeft;

	/** For the requests made in the user's name: a token that the service refuses ends the session. Told once, however many requests fail. */
	void NoteFailure(EVelmorantFailure Failure, const FString& TokenOfRequest);

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
	void BeginSession(const FVelmorantLoginAnswer& Answer, const FString& UserName);
	void EndSession();
	void DropToken();

	UPROPERTY(BlueprintAssignable)
	FLoginResult OnLoginResult;

	UPROPERTY()
	TObjectPtr<UVelmorantProjectRequestManager> ProjectRequestManager;

	FLoginInfo LoginInfo;
	FString Account; // user name of the last successful login; empty after a logout
	FString Token;
	EVelmorantFailure LoginFailure{};
	FTSTicker::FDelegateHandle TokenTimer;
	int32 NumLoginsInProcess = 0;
	int32 NumLogouts = 0; // tells answers to logins from those that a logout came after
	bool bNotSignedInTold = false; // since anything changed about that
	double TokenExpiry = 0.0; // seconds on the application's clock
};
