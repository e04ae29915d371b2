// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWDevInfo.h"

#include "Components/CheckBox.h"
#include "Components/TextBlock.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VlmButton.h"
#include "VlmImage.h"

void UVlmEWDevInfo::NativeConstruct()
{
	Super::NativeConstruct();

	if (LogoutButton)
	{
		LogoutButton->OnButtonClicked.AddUniqueDynamic(this, &UVlmEWDevInfo::ReceivedClickLogout);
	}
}

void UVlmEWDevInfo::ActivateDataPanel_Implementation()
{
	bPanelActivated = true;

	const FLoginInfo LoginInfo = UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser()->GetUserLoginInfo();
	DevName->SetText(FText::FromString(FString::Printf(TEXT("%s %s"), *LoginInfo.FirstName, *LoginInfo.LastName)));
	DevEmail->SetText(FText::FromString(LoginInfo.Email));

	// Without a picture the image keeps what it shows, tint included.
	if (!LoginInfo.Picture.IsEmpty())
	{
		DevImage->SetImageFromData(LoginInfo.Picture, EImageRequestSize::Medium);
		DevImage->SetColorAndOpacity(FLinearColor::White);
	}
}

bool UVlmEWDevInfo::GetDevUserInRuntime() const
{
	return UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true)->ShouldUseAtRuntime();
}

void UVlmEWDevInfo::SetDevUserInRuntime(bool bUseInRuntime)
{
	UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true)->SetDevAsRuntimeUser(bUseInRuntime);
}

void UVlmEWDevInfo::ReceivedClickLogout(FName)
{
	UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true)->RequestUserLogout();
}
