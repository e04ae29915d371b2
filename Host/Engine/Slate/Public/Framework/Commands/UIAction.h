// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);
DECLARE_DELEGATE_RetVal(ECheckBoxState, FGetActionCheckState);
DECLARE_DELEGATE_RetVal(bool, FIsActionButtonVisible);

enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled,
};

/** What a command or menu entry does, and when it can. An unbound condition is always met. */
struct SLATE_API FUIAction
{
	FUIAction() = default;
	FUIAction(FExecuteAction InExecuteAction, EUIActionRepeatMode InRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction, EUIActionRepeatMode InRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }
	bool IsVisible() const { return !IsActionVisibleDelegate.IsBound() || IsActionVisibleDelegate.Execute(); }
	ECheckBoxState GetCheckState() const { return GetActionCheckState.IsBound() ? GetActionCheckState.Execute() : ECheckBoxState::Unchecked; }

	/** @return whether something ran. */
	bool Execute() const { return CanExecute() && ExecuteAction.ExecuteIfBound(); }

	FExecuteAction ExecuteAction;
	FCanExecuteAction CanExecuteAction;
	FGetActionCheckState GetActionCheckState;
	FIsActionButtonVisible IsActionVisibleDelegate;
	EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled;
};
