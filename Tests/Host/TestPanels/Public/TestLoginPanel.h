// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Blueprint/UserWidget.h"
#include "CoreMinimal.h"
#include "UObject/Interface.h"

#include "TestLoginPanel.generated.h"

class UButton;
class UCheckBox;
class UEditableText;

USTRUCT(BlueprintType)
struct FTestLoginInfo
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "Test")
	FString Name;

	UPROPERTY(BlueprintReadWrite, Category = "Test")
	int32 Visits = 0;
};

UENUM(BlueprintType)
enum class ETestMood : uint8
{
	Calm,
	Busy,
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FTestLoginResult, bool, bSuccess, FTestLoginInfo, LoginInfo);

/** Something that is no widget, for layouts to ask and to listen to. */
UCLASS()
class UTestVisitorBook : public UObject
{
	GENERATED_BODY()

public:
	/** The only one; keeps where it lies. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	static UTestVisitorBook* GetBook(const FString& InWhere);

	UFUNCTION(BlueprintPure, Category = "Test")
	static FTestLoginInfo MakeVisitor(const FString& Name, int32 Visits) { return FTestLoginInfo{Name, Visits}; }

	UFUNCTION(BlueprintPure, Category = "Test")
	UTestVisitorBook* GetCopy() { return this; }

	UFUNCTION(BlueprintPure, Category = "Test")
	UTestVisitorBook* GetNothing() const { return nullptr; }

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Forget() { Place = TEXT("nowhere"); }

	UPROPERTY(BlueprintReadOnly, Category = "Test")
	FString Place;

	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestLoginResult OnVisit;
};

UINTERFACE()
class UTestPanelInterface : public UInterface
{
	GENERATED_BODY()
};

class ITestPanelInterface
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Test")
	void ActivateDataPanel();
};

/** A panel with everything that a layout can bind to. Notes what happens to it, in order. */
UCLASS(Abstract)
class UTestLoginPanel : public UUserWidget, public ITestPanelInterface
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintImplementableEvent, Category = "Test")
	void OnLoginInProcess(bool bInProgress);

	UFUNCTION(BlueprintImplementableEvent, BlueprintCallable, Category = "Test")
	void OnVisitorChanged(int32 Count, const FTestLoginInfo& Visitor);

	UFUNCTION(BlueprintNativeEvent, Category = "Test")
	void OnMoodChanged(ETestMood NewMood);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void SetRememberMe(bool InRememberMe);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Note(const FString& InText, int32 InNumber);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void TakeWidgets(const TArray<UWidget*>& InWidgets);

	UFUNCTION(BlueprintCallable, Category = "Test")
	FString GetGreeting() const { return TEXT("Ahoy"); }

	/** For combo boxes: the option in brackets. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	UWidget* MakeOptionWidget(FString Item);

	//~ Reflected, but not for Blueprints

	UFUNCTION()
	void ReceivedSubmit();

	UFUNCTION()
	FString GetSecret() const { return TEXT("1234"); }

	UPROPERTY()
	int32 NumVisits = 0;

	UPROPERTY()
	FTestLoginResult OnVisit;

	UPROPERTY(BlueprintReadOnly, Category = "Test", meta = (BindWidget))
	TObjectPtr<UEditableText> UserName;

	UPROPERTY(BlueprintReadOnly, Category = "Test", meta = (BindWidget))
	TObjectPtr<UButton> Submit;

	UPROPERTY(BlueprintReadOnly, Category = "Test", meta = (BindWidgetOptional))
	TObjectPtr<UCheckBox> RememberUser;

	UPROPERTY(BlueprintReadOnly, Category = "Test")
	ETestMood Mood = ETestMood::Calm;

	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestLoginResult OnLoginResult;

	TArray<FString> Happened;

	//~ Begin ITestPanelInterface
	virtual void ActivateDataPanel_Implementation() override { Happened.Add(TEXT("native ActivateDataPanel")); }
	//~ End ITestPanelInterface

protected:
	//~ Begin UUserWidget
	virtual void NativeOnInitialized() override;
	virtual void NativePreConstruct() override;
	virtual void NativeConstruct() override;
	virtual void NativeDestruct() override;
	//~ End UUserWidget
};
