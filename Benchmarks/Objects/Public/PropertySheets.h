// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "PropertySheets.generated.h"

/** Ten properties of the kinds that details panels show. */
USTRUCT()
struct BENCHMARKOBJECTS_API FSheetBlock
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Block")
	bool bFlag = false;

	UPROPERTY(EditAnywhere, Category = "Block")
	int32 Count = 1;

	UPROPERTY(EditAnywhere, Category = "Block")
	float Ratio = 0.5f;

	UPROPERTY(EditAnywhere, Category = "Block")
	double Distance = 2.5;

	UPROPERTY(EditAnywhere, Category = "Block")
	FName Name = "Name";

	UPROPERTY(EditAnywhere, Category = "Block")
	FString Title = TEXT("Title");

	UPROPERTY(EditAnywhere, Category = "Block")
	FText Note;

	UPROPERTY(EditAnywhere, Category = "Block")
	FVector Place = FVector(1.0, 2.0, 3.0);

	UPROPERTY(EditAnywhere, Category = "Block")
	FLinearColor Color = FLinearColor::White;

	UPROPERTY(EditAnywhere, Category = "Block")
	TObjectPtr<UObject> Reference;
};

/** 200 properties, in blocks of ten. */
UCLASS()
class BENCHMARKOBJECTS_API UPropertySheet : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block1;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block2;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block3;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block4;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block5;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block6;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block7;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block8;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block9;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block10;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block11;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block12;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block13;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block14;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block15;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block16;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block17;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block18;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block19;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block20;
};

/** 400 properties. */
UCLASS()
class BENCHMARKOBJECTS_API UDoublePropertySheet : public UPropertySheet
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block21;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block22;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block23;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block24;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block25;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block26;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block27;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block28;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block29;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block30;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block31;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block32;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block33;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block34;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block35;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block36;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block37;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block38;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block39;

	UPROPERTY(EditAnywhere, Category = "Sheet")
	FSheetBlock Block40;
};
