// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "Blueprint.generated.h"

/** What a Blueprint is good for. */
UENUM()
enum EBlueprintType : int
{
	BPTYPE_Normal,
	BPTYPE_Const,
	BPTYPE_MacroLibrary,
	BPTYPE_Interface,
	BPTYPE_LevelScript,
	BPTYPE_FunctionLibrary,
	BPTYPE_MAX,
};

/** A class made in the editor: a parent class and what is added to it. Host: nothing can be added but default values. */
UCLASS(BlueprintType)
class ENGINE_API UBlueprint : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<UObject> ParentClass;

	UPROPERTY()
	TEnumAsByte<EBlueprintType> BlueprintType = BPTYPE_Normal;

	/** Made anew whenever the Blueprint is loaded. Null when the parent class is missing. */
	UPROPERTY(Transient)
	TSubclassOf<UObject> GeneratedClass;

	//~ Begin UObject
	virtual void PostLoad() override;
	//~ End UObject
};
