// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"

/** What only entries of toolbars have. */
struct FToolMenuEntryToolBarData
{
	/** The menu below a combo button. */
	FNewToolMenuChoice ComboButtonContextMenuGenerator;
};

/** One line of a menu or one button of a toolbar. Change it before it is added, or through the reference that adding returns. */
struct TOOLMENUS_API FToolMenuEntry
{
	FToolMenuEntry() = default;
	FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType)
		: Name(InName)
		, Owner(InOwner)
		, Type(InType)
	{
	}

	static FToolMenuEntry InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
		const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction, const FNewToolMenuChoice& InMenuContentGenerator,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);

	/** Binds the entry's command to what this list maps it to. */
	void SetCommandList(const TSharedPtr<const FUICommandList>& InCommandList) { CommandList = InCommandList; }

	bool IsDynamic() const { return Construct.IsBound(); }
	bool OpensMenu() const { return bOpensMenu; }

	//~ What the entry does for a context. A command's action is looked up in the entry's list, then in the context's.
	bool CanExecute(const FToolMenuContext& Context) const;
	bool IsVisible(const FToolMenuContext& Context) const;
	/** @return whether something ran. */
	bool Execute(const FToolMenuContext& Context) const;

	FName Name;
	FToolMenuOwner Owner;
	EMultiBlockType Type = EMultiBlockType::None;
	EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button;
	FName TutorialHighlightName;
	FToolMenuInsert InsertPosition;
	bool bShouldCloseWindowAfterMenuSelection = true;

	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	FName StyleNameOverride;

	TSharedPtr<const FUICommandInfo> Command;
	TSharedPtr<const FUICommandList> CommandList;

	FToolMenuEntryToolBarData ToolBarData;

private:
	friend class FToolMenuBuilder;
	friend struct FToolMenuSection;

	const FUIAction* FindUIAction(const FToolMenuContext& Context) const;

	FToolUIActionChoice Action;
	FNewToolMenuSectionDelegate Construct;
	FNewToolMenuChoice SubMenuContent;
	TSharedPtr<SWidget> CustomWidget;
	bool bOpensMenu = false;
};
