// Copyright Velmorant. All Rights Reserved.

#include "ToolMenuEntry.h"

#include "ToolMenuContext.h"

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

FToolMenuEntry FToolMenuEntry::InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	FToolMenuEntry Entry(FToolMenuOwner(), InName, EMultiBlockType::None);
	Entry.Construct = InConstruct;
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
