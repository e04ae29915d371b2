// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWLoginUser.h"

#include "Components/CheckBox.h"
#include "Components/EditableText.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VlmButton.h"

void UVlmEWLoginUser::NativeConstruct()
{
	Super::NativeConstruct();

	if (SummitButton)
	{
		SummitButton->OnButtonClicked.AddUniqueDynamic(this, &UVlmEWLoginUser::ReceivedClickSummit);
	}

	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true);
	if (EditorUser && EditorUser->HasSavedUserData())
	{
		LoadUserDataSaved();
	}
}

void UVlmEWLoginUser::LoadUserDataSaved()
{
	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true);
	if (!EditorUser)
	{
		return;
	}

	const FVelmorantUserInformation UserInformation = EditorUser->GetUserInfo();
	if (UserName && !UserInformation.UserName.IsEmpty())
	{
		UserName->SetText(FText::FromString(UserInformation.UserName));
	}
	if (UserPassword && !UserInformation.Password.IsEmpty())
	{
		UserPassword->SetText(FText::FromString(UserInformation.Password));
	}
	OnRememberMeOption(UserInformation.bRememberMe);
}

void UVlmEWLoginUser::SetRememberMeOption(bool InChecked)
{
	bRememberMe = InChecked;
}

void UVlmEWLoginUser::ReceivedClickSummit(FName)
{
	const FString Name = UserName->GetText().ToString();
	const FString Password = UserPassword->GetText().ToString();

	UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
	UVelmorantUser* User = UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser();
	User->GetOnLoginResult().AddUniqueDynamic(this, &UVlmEWLoginUser::Received_LoginResult);

	FVelmorantUserInformation UserInformation(bRememberMe, Name, Password);
	UserInformation.bFromEditor = true;
	User->RequestUserLogin(UserInformation);

	if (bRememberMe)
	{
		if (UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false))
		{
			EditorUser->SaveUserData();
		}
	}
	OnLoginInProcess(true);
}

void UVlmEWLoginUser::Received_LoginResult(bool bSuccess, FLoginInfo UserLogInfo)
{
	OnLoginInProcess(false);
	OnLoginResultReceived(bSuccess);

	if (!bSuccess && OnLoginResult.IsBound())
	{
		// The binding to the user stays on purpose: it does no harm, since the next click binds add-unique.
		OnLoginResult.Broadcast(false, UserLogInfo);
		return;
	}

	if (OnLoginResult.IsBound())
	{
		OnLoginResult.Broadcast(true, UserLogInfo);
	}
	UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser()->GetOnLoginResult().RemoveDynamic(this, &UVlmEWLoginUser::Received_LoginResult);
}
