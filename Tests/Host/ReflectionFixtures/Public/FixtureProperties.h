// Copyright Velmorant. All Rights Reserved.
// One property of each kind, and what specifiers and metadata make of them.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "FixtureEnums.h"
#include "FixtureStructs.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "FixtureProperties.generated.h"

class UFixtureFunctions;

DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(int32, FFixtureCount, const FString&, Text);

/**
 * Every kind of property.
 *   Indented lines keep their words.
 */
UCLASS(BlueprintType, Config = FixtureConfig, DefaultConfig, meta = (DisplayName = "All \"kinds\""))
class REFLECTIONFIXTURES_API UFixtureProperties : public UObject
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FFixtureChanged, UFixtureProperties*, Sender, const TArray<FName>&, Names);

	UPROPERTY()
	bool bFlag = true;
	UPROPERTY()
	int8 Tiny = -8;
	UPROPERTY()
	int16 Small = -16;
	UPROPERTY()
	int32 Medium = -32;
	UPROPERTY()
	int64 Large = -64;
	UPROPERTY()
	uint8 Byte = 8;
	UPROPERTY()
	uint16 Word = 16;
	UPROPERTY()
	uint32 DoubleWord = 32;
	UPROPERTY()
	uint64 QuadWord = 64;
	UPROPERTY()
	float Single = 0.5f;
	UPROPERTY()
	double Double = 0.25;
	UPROPERTY()
	FString String = TEXT("text; with \"quotes\"");
	UPROPERTY()
	FName Name = FName(TEXT("A_Name"));
	UPROPERTY()
	FText Text;

	UPROPERTY()
	EFixtureDoor Door = EFixtureDoor::Folding;
	UPROPERTY()
	EFixtureSides Sides = EFixtureSides::South;
	UPROPERTY()
	TEnumAsByte<EFixturePlain> Plain = FixturePlain_Second;
	UPROPERTY()
	TEnumAsByte<EFixtureUnsized> Unsized = FixtureUnsized_Only;
	UPROPERTY()
	TEnumAsByte<EFixtureSpaced::Type> Spaced = EFixtureSpaced::Wide;

	UPROPERTY()
	FFixturePoint Point = FFixturePoint(3, 4);
	UPROPERTY()
	FFixtureLabelledPoint LabelledPoint;
	UPROPERTY()
	FVector Vector = FVector(1.0, 2.0, 3.0);
	UPROPERTY()
	FLinearColor Colour;
	UPROPERTY()
	FSoftObjectPath SoftPath;
	UPROPERTY()
	FSoftClassPath SoftClassPath;

	UPROPERTY()
	TObjectPtr<UFixtureFunctions> Object;
	UPROPERTY()
	UObject* RawObject = nullptr;
	UPROPERTY()
	const class UFixtureProperties* ConstObject = nullptr;
	UPROPERTY()
	TWeakObjectPtr<UFixtureFunctions> Weak;
	UPROPERTY()
	TSoftObjectPtr<UFixtureFunctions> Soft;
	UPROPERTY()
	TSubclassOf<UFixtureFunctions> Class;
	UPROPERTY()
	UClass* AnyClass = nullptr;

	UPROPERTY()
	TArray<int32> Numbers = {1, 2, 3};
	UPROPERTY()
	TArray<FFixturePoint> Points;
	UPROPERTY()
	TArray<TObjectPtr<UFixtureFunctions>> Objects;
	UPROPERTY()
	TArray<TEnumAsByte<EFixturePlain>> Plains;
	UPROPERTY()
	TSet<FName> Names;
	UPROPERTY()
	TMap<FName, FFixturePoint> Places;
	UPROPERTY()
	TMap<FString, TObjectPtr<UObject>> ObjectsByName;

	UPROPERTY()
	FFixtureCount Count;
	UPROPERTY(BlueprintAssignable, Category = "Events")
	FFixtureChanged OnChanged;

	UPROPERTY(Config)
	FString Setting;
	UPROPERTY(GlobalConfig)
	FString GlobalSetting;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Outer|Inner", meta = (FixtureMin = "-1.5", FixtureMax = 2, FixtureWords = "one two"))
	float Limited = 0.f;
	UPROPERTY(BlueprintReadOnly, meta = (BindWidget))
	TObjectPtr<UObject> Bound;
	UPROPERTY(BlueprintReadOnly, Transient, meta = (BindWidgetOptional, ToolTip = "Kept \"as\" written:\t\\n is\n two lines"))
	TObjectPtr<UObject> BoundOptionally;
	// A comment of two lines
	// makes a tool tip.
	UPROPERTY(VisibleAnywhere)
	int32 Commented = 0;

	int32 GetPrivate() const { return Private; }

protected:
	UPROPERTY(BlueprintReadOnly)
	int32 Guarded = 11;

private:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	int32 Private = 12;
};
