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

	/** Looks into the other list for commands that this one does not map. */
	void Append(const TSharedRef<FUICommandList>& InCommandsToAppend);

	/** @return whether something ran. */
	bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;

	/** Null when the command is mapped neither here nor in an appended list. */
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> UICommandBindingMap;
	TArray<TWeakPtr<FUICommandList>> AppendedLists;
};
