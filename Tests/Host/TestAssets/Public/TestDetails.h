// Copyright Velmorant. All Rights Reserved.
// An object for details panels: a property of every sort that a panel shows in its own way, and what it was told of changes.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "TestAssets.h"
#include "TestDetails.generated.h"

UENUM()
enum class ETestFinish : uint8
{
	Matt,
	Glossy UMETA(DisplayName = "High Gloss"),
	Secret UMETA(Hidden),
};

USTRUCT()
struct TESTASSETS_API FTestIcon
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Icon")
	FName Font = TEXT("Harbor");

	UPROPERTY(EditAnywhere, Category = "Icon")
	FName IconName;

	UPROPERTY(EditAnywhere, Category = "Icon")
	FLinearColor Tint = FLinearColor(1.f, 0.5f, 0.f, 1.f);

	UPROPERTY(EditAnywhere, Category = "Icon")
	bool bUseContrast = false;

	UPROPERTY()
	int32 Revision = 0;
};

/** A struct in which another one lies. */
USTRUCT()
struct TESTASSETS_API FTestSign
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Sign")
	FText Title;

	UPROPERTY(EditAnywhere, Category = "Sign")
	FTestIcon Icon;
};

/** The same as an icon, and more. */
USTRUCT()
struct TESTASSETS_API FTestBigIcon : public FTestIcon
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Icon")
	float Scale = 2.f;
};

UCLASS()
class TESTASSETS_API UTestDetails : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Numbers")
	int32 Count = 7;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	uint8 Small = 0;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	float Single = 0.5f;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	double Double = 0;

	UPROPERTY(VisibleAnywhere, Category = "Numbers")
	int32 Fixed = 3;

	UPROPERTY(EditAnywhere, Category = "Texts")
	FString Text;

	UPROPERTY(EditAnywhere, Category = "Texts")
	FName Identifier;

	UPROPERTY(EditAnywhere, Category = "Texts")
	FText Caption;

	UPROPERTY(EditAnywhere, Category = "Look", meta = (DisplayName = "Surface", ToolTip = "How light comes back"))
	ETestFinish Finish = ETestFinish::Matt;

	UPROPERTY(EditAnywhere, Category = "Look")
	TEnumAsByte<ETestSize> Size = TS_Small;

	UPROPERTY(EditAnywhere, Category = "Look")
	bool bVisible = true;

	UPROPERTY(EditAnywhere, Category = "Look|Colours")
	FLinearColor Tint = FLinearColor(1.f, 1.f, 1.f, 1.f);

	UPROPERTY(EditAnywhere, Category = "Parts")
	FTestSign Sign;

	UPROPERTY(EditAnywhere, Category = "Parts")
	TArray<FTestIcon> Icons;

	UPROPERTY(EditAnywhere, Category = "Parts")
	TMap<FName, FTestIcon> IconsByName;

	UPROPERTY(EditAnywhere, Category = "Parts")
	TSet<FString> Tags;

	UPROPERTY(EditAnywhere, Category = "Links")
	TObjectPtr<UTestPart> Part;

	UPROPERTY(EditAnywhere, Category = "Links")
	TSoftObjectPtr<UTestAsset> Soft;

	UPROPERTY(EditAnywhere)
	FVector Location = FVector(0, 0, 0);

	UPROPERTY()
	int32 NotShown = 1;

	/** What the object was told, in order: "before Count", "after Count in Count". */
	TArray<FString> Told;
	bool bRefusesChanges = false;

	//~ Begin UObject
	virtual void PreEditChange(FProperty* Property) override;
	virtual void PostEditChangeProperty(FPropertyChangedEvent& Event) override;
	virtual bool CanEditChange(const FProperty* Property) const override;
	//~ End UObject
};

UCLASS()
class TESTASSETS_API UTestSpecialDetails : public UTestDetails
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Special")
	FTestBigIcon BigIcon;
};
