// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Optional.h"

class UToolMenu;
struct FToolMenuContext;
struct FToolMenuSection;

DECLARE_DELEGATE_OneParam(FNewToolMenuSectionDelegate, FToolMenuSection&);
DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*);
DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FNewToolMenuWidget, const FToolMenuContext&);

DECLARE_DELEGATE_OneParam(FToolMenuExecuteAction, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(bool, FToolMenuCanExecuteAction, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(ECheckBoxState, FToolMenuGetActionCheckState, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(bool, FToolMenuIsActionButtonVisible, const FToolMenuContext&);

/** An action that is told what its menu was opened for. Unbound conditions are met. */
struct FToolUIAction
{
	FToolUIAction() = default;
	FToolUIAction(const FToolMenuExecuteAction& InExecuteAction)
		: ExecuteAction(InExecuteAction)
	{
	}

	FToolMenuExecuteAction ExecuteAction;
	FToolMenuCanExecuteAction CanExecuteAction;
	FToolMenuGetActionCheckState GetActionCheckState;
	FToolMenuIsActionButtonVisible IsActionVisibleDelegate;
};

/** Any of the kinds of action that an entry can have. */
struct TOOLMENUS_API FToolUIActionChoice
{
	FToolUIActionChoice() = default;
	FToolUIActionChoice(const FUIAction& InAction)
		: Action(InAction)
	{
	}
	FToolUIActionChoice(const FExecuteAction& InExecuteAction)
		: Action(FUIAction(InExecuteAction))
	{
	}
	FToolUIActionChoice(const FToolUIAction& InAction)
		: ToolAction(InAction)
	{
	}
	FToolUIActionChoice(const FToolMenuExecuteAction& InExecuteAction)
		: ToolAction(FToolUIAction(InExecuteAction))
	{
	}

	const FUIAction* GetUIAction() const { return Action.IsSet() ? &Action.GetValue() : nullptr; }
	const FToolUIAction* GetToolUIAction() const { return ToolAction.IsSet() ? &ToolAction.GetValue() : nullptr; }

private:
	TOptional<FUIAction> Action;
	TOptional<FToolUIAction> ToolAction;
};

/** Any of the ways to make the menu that an entry opens. */
struct FNewToolMenuChoice
{
	FNewToolMenuChoice() = default;
	FNewToolMenuChoice(const FOnGetContent& InOnGetContent)
		: OnGetContent(InOnGetContent)
	{
	}
	FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenu)
		: NewToolMenu(InNewToolMenu)
	{
	}
	FNewToolMenuChoice(const FNewToolMenuWidget& InNewToolMenuWidget)
		: NewToolMenuWidget(InNewToolMenuWidget)
	{
	}
	FNewToolMenuChoice(const FNewMenuDelegate& InNewMenu)
		: NewMenu(InNewMenu)
	{
	}

	FOnGetContent OnGetContent;
	FNewToolMenuDelegate NewToolMenu;
	FNewToolMenuWidget NewToolMenuWidget;
	FNewMenuDelegate NewMenu;
};
