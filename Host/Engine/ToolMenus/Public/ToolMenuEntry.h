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
	static FToolMenuEntry InitMenuEntry(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& Widget);
	static FToolMenuEntry InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
		const FName InTutorialHighlightName = NAME_None, const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InCommandList,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const TAttribute<FText>& InToolTip = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button, FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction, const FNewToolMenuChoice& InMenuContentGenerator,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu,
		bool bInOpenSubMenuOnClick = false, const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const bool bInShouldCloseWindowAfterMenuSelection = true);
	static FToolMenuEntry InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);
	static FToolMenuEntry InitSeparator(const FName InName);
	static FToolMenuEntry InitWidget(const FName InName, const TSharedRef<SWidget>& Widget, const FText& Label, bool bNoIndent = false, bool bSearchable = true,
		bool bInNoPadding = false, const FText& InToolTipText = FText());

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

	static FToolMenuEntry MakeForCommand(EMultiBlockType Type, const FName Name, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName);
	const FUIAction* FindUIAction(const FToolMenuContext& Context) const;

	FToolUIActionChoice Action;
	FNewToolMenuSectionDelegate Construct;
	FNewToolMenuChoice SubMenuContent;
	TSharedPtr<SWidget> CustomWidget;
	bool bOpensMenu = false;
};
