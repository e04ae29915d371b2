// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/Object.h"
#include "TestDoor.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FTestOnMoved);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FTestOnOpened, const FString&, Who, bool, bWide);
DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(int32, FTestCount, int32, Start);

UINTERFACE(BlueprintType)
class UTestOpenable : public UInterface
{
	GENERATED_BODY()
};

/** Something that can be opened. */
class ITestOpenable
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Test")
	FString Open(const FString& Who, int32 Angle);
};

/** Has functions and events of all kinds. */
UCLASS()
class UTestDoor : public UObject, public ITestOpenable
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Test")
	int32 Add(int32 A, int32 B);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString Join(const FString& A, FName B);

	UFUNCTION(BlueprintCallable, Category = "Test")
	void Split(const FString& Text, FString& OutHead, FString& OutTail) const;

	UFUNCTION(BlueprintImplementableEvent, Category = "Test")
	void OnPainted(const FString& Colour, int32 Coats);

	UFUNCTION(BlueprintImplementableEvent, Category = "Test")
	int32 CountHinges();

	UFUNCTION(BlueprintNativeEvent, Category = "Test")
	FString Describe(int32 Detail);
	virtual FString Describe_Implementation(int32 Detail);

	virtual FString Open_Implementation(const FString& Who, int32 Angle) override;

	UFUNCTION()
	void HandleMoved();

	UFUNCTION()
	void HandleOpened(const FString& Who, bool bWide);

	UFUNCTION()
	int32 CountFrom(int32 Start);

	UPROPERTY(BlueprintAssignable)
	FTestOnMoved OnMoved;

	UPROPERTY(BlueprintAssignable)
	FTestOnOpened OnOpened;

	TArray<FString> Log;
	TFunction<void()> WhenMoved;
};

/** A door that is native, overrides virtuals, and is not the class that declares them. */
UCLASS()
class UTestSlidingDoor : public UTestDoor
{
	GENERATED_BODY()

public:
	virtual FString Describe_Implementation(int32 Detail) override;
	virtual FString Open_Implementation(const FString& Who, int32 Angle) override;
};
