// Copyright Velmorant. All Rights Reserved.
// Kinds of asset for tests: one with a property of every sort, and what belongs to it.

#pragma once

#include "AssetDefinitionDefault.h"
#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "TestAssets.generated.h"

UENUM()
enum class ETestColor : uint8
{
	Red,
	Green,
	Blue,
};

UENUM()
enum ETestSize : int
{
	TS_Small,
	TS_Large,
};

USTRUCT()
struct TESTASSETS_API FTestProduct
{
	GENERATED_BODY()

	UPROPERTY()
	FString Name = TEXT("Product");

	UPROPERTY()
	int32 Price = 5;
};

USTRUCT()
struct TESTASSETS_API FTestRoom
{
	GENERATED_BODY()

	UPROPERTY()
	FText Title;

	UPROPERTY()
	TArray<FTestProduct> Products;
};

/** Belongs to a UTestAsset, or to another part. */
UCLASS()
class TESTASSETS_API UTestPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString Label;

	UPROPERTY()
	TObjectPtr<UObject> Partner;
};

UCLASS(Blueprintable)
class TESTASSETS_API UTestAsset : public UObject
{
	GENERATED_BODY()

public:
	UTestAsset();

	UPROPERTY()
	bool bFlag = true;

	UPROPERTY()
	int32 Count = 7;

	UPROPERTY()
	int64 Big = 0;

	UPROPERTY()
	uint64 Huge = 0;

	UPROPERTY()
	uint8 Small = 0;

	UPROPERTY()
	float Single = 0.f;

	UPROPERTY()
	double Double = 0;

	UPROPERTY()
	ETestColor Color = ETestColor::Green;

	UPROPERTY()
	TEnumAsByte<ETestSize> Size = TS_Small;

	UPROPERTY()
	FString Text;

	UPROPERTY()
	FName Identifier;

	UPROPERTY()
	FText Caption;

	UPROPERTY()
	TArray<FText> Captions;

	UPROPERTY()
	TArray<FTestRoom> Rooms;

	UPROPERTY()
	TMap<FName, FTestProduct> ProductsByName;

	UPROPERTY()
	TSet<FString> Tags;

	UPROPERTY()
	FVector Location = FVector(0, 0, 0);

	UPROPERTY()
	FLinearColor Tint = FLinearColor(1, 1, 1, 1);

	UPROPERTY()
	FSoftObjectPath Path;

	UPROPERTY()
	TSoftObjectPtr<UTestAsset> Soft;

	UPROPERTY()
	TSubclassOf<UObject> Kind;

	UPROPERTY()
	TObjectPtr<UTestAsset> Other;

	UPROPERTY()
	TArray<TObjectPtr<UTestPart>> Parts;

	/** Made by the constructor. */
	UPROPERTY()
	TObjectPtr<UTestPart> OwnPart;

	UPROPERTY(Transient)
	int32 Scratch = 0;
};

UCLASS()
class TESTASSETS_API UTestSpecialAsset : public UTestAsset
{
	GENERATED_BODY()
};

/** Read by a reader of its own. */
UCLASS()
class TESTASSETS_API UTestLayoutAsset : public UTestAsset
{
	GENERATED_BODY()
};

UCLASS(Abstract)
class TESTASSETS_API UTestAbstractAsset : public UObject
{
	GENERATED_BODY()
};

/** Makes a UTestAsset; tests make it refuse. */
UCLASS()
class TESTASSETS_API UTestAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UTestAssetFactory();

	bool bConfigures = true;
	bool bMakesObject = true;
	int32 NumConfigured = 0;

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	virtual bool ConfigureProperties() override;
	//~ End UFactory
};

/** Presents UTestAsset. */
UCLASS()
class TESTASSETS_API UTestAsset_AssetDefinition : public UAssetDefinitionDefault
{
	GENERATED_BODY()

public:
	//~ Begin UAssetDefinition
	virtual TConstArrayView<FAssetCategoryPath> GetAssetCategories() const override;
	virtual TSoftClassPtr<UObject> GetAssetClass() const override;
	virtual FLinearColor GetAssetColor() const override;
	virtual FText GetAssetDisplayName() const override;
	//~ End UAssetDefinition
};
