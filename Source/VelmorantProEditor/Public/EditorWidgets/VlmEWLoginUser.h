// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "VelmorantUser.h"
#include "VlmEWLoginUser.generated.h"

class UCheckBox;
class UEditableText;
class UVlmButton;

/**
 * Signs the designer in to the online service.
 *
 * Stores no credentials: they live in the SDK's developer user, which is read at construction and given them back at every login.
 */
UCLASS(Abstract)
class VELMORANTPROEDITOR_API UVlmEWLoginUser : public UUserWidget
{
	GENERATED_BODY()

public:
	/** The service's answer to a login. */
	UPROPERTY(BlueprintAssignable, Category = "Editor|Velmorant|VlmEWLoginUser")
	FLoginResult OnLoginResult;

	UFUNCTION(BlueprintCallable, Category = "Editor|Velmorant|VlmEWLoginUser")
	void SetRememberMeOption(bool InChecked);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWLoginUser")
	void OnLoginInProcess(bool bInProgress);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWLoginUser")
	void OnLoginResultReceived(bool bSuccessful);

	UFUNCTION(BlueprintImplementableEvent, Category = "Editor|Velmorant|VlmEWLoginUser")
	void OnRememberMeOption(bool InChecked);

protected:
	//~ Begin UUserWidget
	virtual void NativeConstruct() override;
	//~ End UUserWidget

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWLoginUser", meta = (BindWidget))
	TObjectPtr<UEditableText> UserName;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWLoginUser", meta = (BindWidget))
	TObjectPtr<UEditableText> UserPassword;

	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWLoginUser", meta = (BindWidget))
	TObjectPtr<UVlmButton> SummitButton;

	/** The Blueprint routes its state to SetRememberMeOption(). */
	UPROPERTY(BlueprintReadOnly, Category = "Editor|Velmorant|VlmEWLoginUser", meta = (BindWidget))
	TObjectPtr<UCheckBox> RememberUserCheckBox;

private:
	/** Fills the fields with what the SDK remembers of the user. */
	void LoadUserDataSaved();

	UFUNCTION()
	void ReceivedClickSummit(FName ButtonID);

	UFUNCTION()
	void Received_LoginResult(bool bSuccess, FLoginInfo UserLogInfo);

	bool bRememberMe = false;
};
