// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "ToolMenuContext.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"

#include "ToolMenu.generated.h"

/** A menu or toolbar: sections of entries. What is registered is a recipe; GenerateMenu() makes the menu that is shown. */
UCLASS(BlueprintType)
class TOOLMENUS_API UToolMenu : public UObject
{
	GENERATED_BODY()

public:
	/** References point into an array: finish with one section before adding the next. */
	FToolMenuSection& AddSection(const FName SectionName, const TAttribute<FText>& InLabel = TAttribute<FText>(), const FToolMenuInsert InPosition = FToolMenuInsert());
	FToolMenuSection& FindOrAddSection(const FName SectionName);
	/** The label is only given to a section that is new. */
	FToolMenuSection& FindOrAddSection(const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition = FToolMenuInsert());
	FToolMenuSection* FindSection(const FName SectionName);

	UPROPERTY()
	FName MenuName;

	UPROPERTY()
	FName MenuParent;

	UPROPERTY()
	FToolMenuContext Context;

	FToolMenuOwner MenuOwner;
	EMultiBoxType MenuType = EMultiBoxType::Menu;
	TArray<FToolMenuSection> Sections;

private:
	friend class UToolMenus;

	bool bRegistered = false;
};
