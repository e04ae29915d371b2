// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"

/** Entries that stand together under one label. An entry of a name that the section has replaces it. */
struct TOOLMENUS_API FToolMenuSection
{
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);

	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
		const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);

	/** Construct adds the entries anew each time the menu is built. */
	FToolMenuEntry& AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);

	FToolMenuEntry* FindEntry(const FName InName);

	FName Name;
	FToolMenuOwner Owner;
	TArray<FToolMenuEntry> Blocks;
	FToolMenuInsert InsertPosition;
	TAttribute<FText> Label;
	FToolMenuContext Context;
};
