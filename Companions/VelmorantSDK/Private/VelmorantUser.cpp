// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUser.h"

#include "IVelmorantService.h"
#include "Misc/App.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

void UVelmorantUser::PostInitProperties()
{
	Super::PostInitProperties();
	if (!HasAnyFlags(RF_ClassDefaultObject))
	{
		ProjectRequestManager = NewObject<UVelmorantProjectRequestManager>(this);
	}
}

UVelmorantProjectRequestManager* UVelmorantUser::GetProjectRequestManager() const
{
	return ProjectRequestManager;
}

void UVelmorantUser::RequestUserLogin(const FVelmorantUserInformation& InUserInformation)
{
	UserInformation = InUserInformation;
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestLogin(UserInformation, [WeakThis = TWeakObjectPtr<UVelmorantUser>(this), UserName = UserInformation.UserName, AskedAfter = NumLogouts](const FVelmorantLoginAnswer& Answer) {
		UVelmorantUser* This = WeakThis.Get();
		if (This && This->NumLogouts == AskedAfter)
		{
			This->ReceiveLoginAnswer(Answer, UserName);
		}
		else if (This)
		{
			// Whoever signed out meanwhile stays signed out; the request still ends, as a failed one.
			UVelmorantSDKEngineSubsystem::Get()->GetService().RequestLogout(Answer.Token);
			This->ReceiveLoginAnswer(FVelmorantLoginAnswer(), UserName);
		}
	});
}

void UVelmorantUser::RequestUserLogout()
{
	if (!Token.IsEmpty())
	{
		UVelmorantSDKEngineSubsystem::Get()->GetService().RequestLogout(Token);
	}
	++NumLogouts;
	Token.Empty();
	LoginInfo = FLoginInfo();
	Account.Empty();
	HandleAccountLeft();
}

void UVelmorantUser::HandleAccountLeft()
{
	ProjectRequestManager->ClearProject();
}

bool UVelmorantUser::HasValidToken() const
{
	return !Token.IsEmpty() && FApp::GetCurrentTime() < TokenExpiry;
}

void UVelmorantUser::ReceiveLoginAnswer(const FVelmorantLoginAnswer& Answer, const FString& UserName)
{
	// A failed login signs nobody in, but nobody out either.
	if (Answer.bSuccess)
	{
		LoginInfo = Answer.LoginInfo;
		Token = Answer.Token;
		TokenExpiry = FApp::GetCurrentTime() + Answer.TokenSeconds;
		if (!Account.IsEmpty() && Account != UserName)
		{
			HandleAccountLeft();
		}
		Account = UserName;
		HandleLoggedIn();
	}
	OnLoginResult.Broadcast(Answer.bSuccess, Answer.LoginInfo);
}
