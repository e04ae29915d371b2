// Copyright Velmorant. All Rights Reserved.

#include "ToolMenuEntry.h"

#include "ToolMenuContext.h"

FToolUIActionChoice::FToolUIActionChoice(const TSharedPtr<const FUICommandInfo>& InCommand, const FUICommandList& InCommandList)
{
	if (const FUIAction* Mapped = InCommandList.GetActionForCommand(InCommand))
	{
		Action = *Mapped;
	}
}

const FUIAction* FToolMenuContext::GetActionForCommand(const TSharedPtr<const FUICommandInfo>& Command) const
{
	for (const TSharedPtr<FUICommandList>& List : CommandLists)
	{
		if (const FUIAction* Action = List->GetActionForCommand(Command))
		{
			return Action;
		}
	}
	return nullptr;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
	const FToolUIActionChoice& InAction, const EUserInterfaceActionType InUserInterfaceActionType, const FName InTutorialHighlightName)
{
	FToolMenuEntry Entry(FToolMenuOwner(), InName, EMultiBlockType::MenuEntry);
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	Entry.Action = InAction;
	Entry.UserInterfaceActionType = InUserInterfaceActionType;
	Entry.TutorialHighlightName = InTutorialHighlightName;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& Widget)
{
	FToolMenuEntry Entry(FToolMenuOwner(), InName, EMultiBlockType::MenuEntry);
	Entry.Action = InAction;
	Entry.CustomWidget = Widget;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::MakeForCommand(EMultiBlockType InType, const FName InName, const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName)
{
	check(InCommand.IsValid());
	FToolMenuEntry Entry(FToolMenuOwner(), InName, InType);
	Entry.Command = InCommand;
	Entry.Label = InLabelOverride.IsSet() ? InLabelOverride : TAttribute<FText>(InCommand->GetLabel());
	Entry.ToolTip = InToolTipOverride.IsSet() ? InToolTipOverride : TAttribute<FText>(InCommand->GetDescription());
	Entry.Icon = InIconOverride.IsSet() ? InIconOverride : TAttribute<FSlateIcon>(InCommand->GetIcon());
	Entry.UserInterfaceActionType = InCommand->GetUserInterfaceType();
	Entry.TutorialHighlightName = InTutorialHighlightName;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	const FName EntryName = InNameOverride.IsSet() ? InNameOverride.GetValue() : InCommand->GetCommandName();
	return MakeForCommand(EMultiBlockType::MenuEntry, EntryName, InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName);
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName)
{
	return MakeForCommand(EMultiBlockType::MenuEntry, InNameOverride, InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName);
}

FToolMenuEntry FToolMenuEntry::InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InCommandList,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = InitMenuEntry(InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride);
	Entry.SetCommandList(InCommandList);
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const EUserInterfaceActionType InUserInterfaceActionType, FName InTutorialHighlightName)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType, InTutorialHighlightName);
	Entry.Type = EMultiBlockType::ToolBarButton;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction, const FNewToolMenuChoice& InMenuContentGenerator,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	bool, FName InTutorialHighlightName)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabelOverride, InToolTipOverride, InIconOverride, InAction, EUserInterfaceActionType::Button, InTutorialHighlightName);
	Entry.Type = EMultiBlockType::ToolBarComboButton;
	Entry.ToolBarData.ComboButtonContextMenuGenerator = InMenuContentGenerator;
	Entry.bOpensMenu = true;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu,
	bool, const TAttribute<FSlateIcon>& InIcon, const bool bInShouldCloseWindowAfterMenuSelection)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, FToolUIActionChoice());
	Entry.SubMenuContent = InMakeMenu;
	Entry.bOpensMenu = true;
	Entry.bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	FToolMenuEntry Entry(FToolMenuOwner(), InName, EMultiBlockType::None);
	Entry.Construct = InConstruct;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSeparator(const FName InName)
{
	return FToolMenuEntry(FToolMenuOwner(), InName, EMultiBlockType::Separator);
}

FToolMenuEntry FToolMenuEntry::InitWidget(const FName InName, const TSharedRef<SWidget>& Widget, const FText& InLabel, bool, bool, bool, const FText& InToolTipText)
{
	FToolMenuEntry Entry(FToolMenuOwner(), InName, EMultiBlockType::Widget);
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTipText;
	Entry.CustomWidget = Widget;
	return Entry;
}

const FUIAction* FToolMenuEntry::FindUIAction(const FToolMenuContext& Context) const
{
	if (!Command.IsValid())
	{
		return Action.GetUIAction();
	}
	const FUIAction* Mapped = CommandList.IsValid() ? CommandList->GetActionForCommand(Command) : nullptr;
	return Mapped ? Mapped : Context.GetActionForCommand(Command);
}

bool FToolMenuEntry::CanExecute(const FToolMenuContext& Context) const
{
	if (const FToolUIAction* ToolAction = Action.GetToolUIAction())
	{
		return !ToolAction->CanExecuteAction.IsBound() || ToolAction->CanExecuteAction.Execute(Context);
	}
	const FUIAction* UIAction = FindUIAction(Context);
	// A command that nobody mapped cannot run; an entry that only opens a menu needs no action.
	return UIAction ? UIAction->CanExecute() : !Command.IsValid();
}

bool FToolMenuEntry::IsVisible(const FToolMenuContext& Context) const
{
	if (const FToolUIAction* ToolAction = Action.GetToolUIAction())
	{
		return !ToolAction->IsActionVisibleDelegate.IsBound() || ToolAction->IsActionVisibleDelegate.Execute(Context);
	}
	const FUIAction* UIAction = FindUIAction(Context);
	return !UIAction || UIAction->IsVisible();
}

bool FToolMenuEntry::Execute(const FToolMenuContext& Context) const
{
	if (!CanExecute(Context))
	{
		return false;
	}
	if (const FToolUIAction* ToolAction = Action.GetToolUIAction())
	{
		const FToolMenuExecuteAction HeldWhileRunning = ToolAction->ExecuteAction;
		return HeldWhileRunning.ExecuteIfBound(Context);
	}
	const FUIAction* UIAction = FindUIAction(Context);
	return UIAction && FUIAction(*UIAction).Execute();
}
