// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"

/** What the commands of some part of the editor do. */
class SLATE_API FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() = default;

	/** Mapping a command that is mapped already is a mistake of the caller (asserts). */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** @return whether something ran. */
	bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;

	/** Null when the command is not mapped. */
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> UICommandBindingMap;
};
