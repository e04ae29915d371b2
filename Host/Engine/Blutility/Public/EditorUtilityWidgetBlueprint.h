// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "WidgetBlueprint.h"

#include "EditorUtilityWidgetBlueprint.generated.h"

class UEditorUtilityWidget;

/** A panel that opens in a tab of the editor. */
UCLASS()
class BLUTILITY_API UEditorUtilityWidgetBlueprint : public UWidgetBlueprint
{
	GENERATED_BODY()

public:
	/** The panel in its open tab; null while it is closed. */
	UEditorUtilityWidget* GetCreatedWidget() const { return CreatedUMGWidget; }

private:
	friend class UEditorUtilitySubsystem;

	UPROPERTY(Transient)
	TObjectPtr<UEditorUtilityWidget> CreatedUMGWidget;
};
