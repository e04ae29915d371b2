// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"

#include "EditorUtilitySubsystem.generated.h"

class SWidget;
class UEditorUtilityWidget;
class UEditorUtilityWidgetBlueprint;

/** Opens editor utility widgets in tabs of the editor. One tab per blueprint; opening it again brings it to the front. */
UCLASS()
class BLUTILITY_API UEditorUtilitySubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	/** Null when there is no blueprint, no class to make a panel of, or no user interface. */
	UEditorUtilityWidget* SpawnAndRegisterTab(UEditorUtilityWidgetBlueprint* InBlueprint);
	UEditorUtilityWidget* SpawnAndRegisterTabAndGetID(UEditorUtilityWidgetBlueprint* InBlueprint, FName& NewTabID);
	UEditorUtilityWidget* SpawnAndRegisterTabWithId(UEditorUtilityWidgetBlueprint* InBlueprint, FName InTabID);

	/** Whether a tab of that name is open. */
	bool DoesTabExist(FName NewTabID);

	/** @return whether there was such a tab. */
	bool CloseTabByID(FName NewTabID);

	//~ Begin USubsystem
	virtual void Deinitialize() override;
	//~ End USubsystem

private:
	friend class FHostTabsAccess;

	/** An open tab. What it shows keeps its panel alive. */
	struct FOpenTab
	{
		FName Id;
		TWeakObjectPtr<UEditorUtilityWidgetBlueprint> Blueprint;
		TSharedPtr<SWidget> Content;
	};

	void Close(FOpenTab Tab);

	TArray<FOpenTab> OpenTabs; // the front one last
};
