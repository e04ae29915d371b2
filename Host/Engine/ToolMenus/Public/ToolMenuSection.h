// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"

/** Entries that stand together under one label. An entry of a name that the section has replaces it. */
struct TOOLMENUS_API FToolMenuSection
{
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);

	FToolMenuEntry& AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
		const FName InTutorialHighlightName = NAME_None, const TOptional<FName> InNameOverride = TOptional<FName>());
	FToolMenuEntry& AddMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None);
	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
		const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);
	FToolMenuEntry& AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InCommandList,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Construct adds the entries anew each time the menu is built. */
	FToolMenuEntry& AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);
	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu,
		bool bInOpenSubMenuOnClick = false, const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const bool bShouldCloseWindowAfterMenuSelection = true);
	FToolMenuEntry& AddSeparator(const FName InName);

	FToolMenuEntry* FindEntry(const FName InName);

	template<typename ContextType>
	ContextType* FindContext() const
	{
		return Context.FindContext<ContextType>();
	}

	FName Name;
	FToolMenuOwner Owner;
	TArray<FToolMenuEntry> Blocks;
	FToolMenuInsert InsertPosition;
	TAttribute<FText> Label;
	FToolMenuContext Context;
};
