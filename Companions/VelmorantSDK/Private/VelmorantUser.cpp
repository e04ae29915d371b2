// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUser.h"

#include "IVelmorantService.h"
#include "Misc/App.h"
#include "VelmorantFailureTexts.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKLog.h"
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

FText UVelmorantUser::GetLoginFailureText() const
{
	return VelmorantFailureTexts::Get(LoginFailure);
}

void UVelmorantUser::RequestUserLogin(const FVelmorantUserInformation& InUserInformation)
{
	UserInformation = InUserInformation;
	++NumLoginsInProcess;
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
			FVelmorantLoginAnswer GivenUp;
			GivenUp.Failure = EVelmorantFailure::GivenUp;
			This->ReceiveLoginAnswer(GivenUp, UserName);
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
	DropToken();
	Account.Empty();
	HandleAccountLeft();
	OnSessionChanged.Broadcast();
}

void UVelmorantUser::HandleAccountLeft()
{
	ProjectRequestManager->ClearProject();
	OnAccountLeft.Broadcast();
}

bool UVelmorantUser::HasValidToken() const
{
	return !Token.IsEmpty() && FApp::GetCurrentTime() < TokenExpiry;
}

void UVelmorantUser::ReceiveLoginAnswer(const FVelmorantLoginAnswer& Answer, const FString& UserName)
{
	--NumLoginsInProcess;
	LoginFailure = Answer.Failure;
	if (Answer.IsSuccess()) // a failed login signs nobody in, but nobody out either
	{
		BeginSession(Answer, UserName);
	}
	OnLoginResult.Broadcast(Answer.IsSuccess(), Answer.LoginInfo);
}

void UVelmorantUser::BeginSession(const FVelmorantLoginAnswer& Answer, const FString& UserName)
{
	DropToken();
	LoginInfo = Answer.LoginInfo;
	Token = Answer.Token;
	TokenExpiry = FApp::GetCurrentTime() + Answer.TokenSeconds;
	TokenTimer = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateWeakLambda(this, [this](float) {
		EndSession();
		return false; // once
	}),
		static_cast<float>(Answer.TokenSeconds));
	if (Account != UserName) // letter case does not make another account
	{
		const bool bLeft = !Account.IsEmpty();
		Account = UserName;
		if (bLeft)
		{
			HandleAccountLeft();
		}
	}
	HandleLoggedIn();
	OnSessionChanged.Broadcast();
}

void UVelmorantUser::EndSession()
{
	DropToken();
	UE_LOG(LogVelmorantSDK, Warning, TEXT("The login is not valid any more; sign in again."));
	bNotSignedInTold = true;
	OnSessionChanged.Broadcast();
}

/** Nobody is signed in then. The account stays: it may sign in again and go on. */
void UVelmorantUser::DropToken()
{
	FTSTicker::RemoveTicker(TokenTimer);
	TokenTimer.Reset();
	Token.Empty();
	LoginInfo = FLoginInfo();
	bNotSignedInTold = false;
}

void UVelmorantUser::NoteFailure(EVelmorantFailure Failure, const FString& TokenOfRequest)
{
	if (Failure != EVelmorantFailure::NotSignedIn || TokenOfRequest != Token)
	{
		return; // a request of an earlier session says nothing of this one
	}
	if (!Token.IsEmpty())
	{
		EndSession();
	}
	else if (!bNotSignedInTold)
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("Nobody is signed in, so requests fail; sign in first."));
		bNotSignedInTold = true;
	}
}
