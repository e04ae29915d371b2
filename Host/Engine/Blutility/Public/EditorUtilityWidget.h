// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Blueprint/UserWidget.h"
#include "CoreMinimal.h"

#include "EditorUtilityWidget.generated.h"

/** The outermost panel of an editor tab. Its world is the one that is open in the editor. */
UCLASS(Abstract, config = Editor)
class BLUTILITY_API UEditorUtilityWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Editor")
	void Run();

	//~ Begin UObject
	virtual UWorld* GetWorld() const override;
	//~ End UObject
};
