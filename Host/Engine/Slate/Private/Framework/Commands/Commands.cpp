// Copyright Velmorant. All Rights Reserved.

#include "Framework/Commands/Commands.h"

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "HostState.h"

FText FInputChord::GetInputText() const
{
	if (!IsValidChord())
	{
		return FText::GetEmpty();
	}
	FString Text;
	Text += (Modifiers & EModifierKey::Control) != 0 ? TEXT("Ctrl+") : TEXT("");
	Text += (Modifiers & EModifierKey::Command) != 0 ? TEXT("Cmd+") : TEXT("");
	Text += (Modifiers & EModifierKey::Alt) != 0 ? TEXT("Alt+") : TEXT("");
	Text += (Modifiers & EModifierKey::Shift) != 0 ? TEXT("Shift+") : TEXT("");
	return FText::FromString(Text + Key.ToString());
}

void FUICommandInfo::MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName,
	const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType,
	const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord)
{
	const TSharedRef<FUICommandInfo> Command = MakeShareable(new FUICommandInfo());
	Command->BindingContext = InContext->GetContextName();
	Command->CommandName = InCommandName;
	Command->Label = InCommandLabel;
	Command->Description = InCommandDesc;
	Command->Icon = InIcon;
	Command->UserInterfaceType = InUserInterfaceType;
	Command->DefaultChord = InDefaultChord;
	Command->AlternateDefaultChord = InAlternateDefaultChord;
	OutCommand = Command;
	FInputBindingManager::Get().AddCommand(Command);
}

void UI_COMMAND_Function(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* SubNamespace, const TCHAR* CommandName,
	const TCHAR* CommandNameToolTip, const TCHAR* FriendlyName, const TCHAR* Description, const EUserInterfaceActionType CommandType,
	const FInputChord& DefaultChord, const FInputChord& AlternateDefaultChord)
{
	const FString IconName = This->GetContextName().ToString() + TEXT(".") + CommandName;
	FUICommandInfo::MakeCommandInfo(This->AsShared(), OutCommand, FName(CommandName), FText::AsLocalizable_Advanced(SubNamespace, CommandName, FriendlyName),
		FText::AsLocalizable_Advanced(SubNamespace, CommandNameToolTip, Description), FSlateIcon(This->GetStyleSetName(), FName(*IconName)), CommandType,
		DefaultChord, AlternateDefaultChord);
}

FInputBindingManager& FInputBindingManager::Get()
{
	static THostState<FInputBindingManager> State;
	return State.Get();
}

const FInputBindingManager::FContextEntry* FInputBindingManager::FindEntry(const FName InContextName) const
{
	return Contexts.FindByPredicate([InContextName](const FContextEntry& Entry) { return Entry.Context->GetContextName() == InContextName; });
}

TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(const FName InBindingContext, const FName CommandName) const
{
	const FContextEntry* Entry = FindEntry(InBindingContext);
	const TSharedPtr<FUICommandInfo>* Command = Entry ? Entry->Commands.FindByPredicate(
															[CommandName](const TSharedPtr<FUICommandInfo>& Info) { return Info->GetCommandName() == CommandName; })
													  : nullptr;
	return Command ? *Command : nullptr;
}

void FInputBindingManager::GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const
{
	if (const FContextEntry* Entry = FindEntry(InBindingContext))
	{
		OutCommandInfos.Append(Entry->Commands);
	}
}

TSharedPtr<FBindingContext> FInputBindingManager::GetContextByName(const FName InContextName) const
{
	const FContextEntry* Entry = FindEntry(InContextName);
	return Entry ? Entry->Context : nullptr;
}

void FInputBindingManager::AddContext(const TSharedRef<FBindingContext>& InContext)
{
	check(FindEntry(InContext->GetContextName()) == nullptr);
	Contexts.AddDefaulted_GetRef().Context = InContext;
}

void FInputBindingManager::AddCommand(const TSharedRef<FUICommandInfo>& InCommand)
{
	FContextEntry* Entry = const_cast<FContextEntry*>(FindEntry(InCommand->GetBindingContext()));
	checkf(Entry, TEXT("Command %s belongs to a set that is not registered."), *InCommand->GetCommandName().ToString());
	Entry->Commands.Add(InCommand);
}

FUIAction::FUIAction(FExecuteAction InExecuteAction, EUIActionRepeatMode InRepeatMode)
	: ExecuteAction(MoveTemp(InExecuteAction))
	, RepeatMode(InRepeatMode)
{
}

FUIAction::FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction, EUIActionRepeatMode InRepeatMode)
	: ExecuteAction(MoveTemp(InExecuteAction))
	, CanExecuteAction(MoveTemp(InCanExecuteAction))
	, RepeatMode(InRepeatMode)
{
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	check(InUICommandInfo.IsValid());
	checkf(!UICommandBindingMap.Contains(InUICommandInfo), TEXT("Command %s is mapped already."), *InUICommandInfo->GetCommandName().ToString());
	UICommandBindingMap.Add(InUICommandInfo, InUIAction);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction,
	EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(MoveTemp(ExecuteAction), MoveTemp(CanExecuteAction), RepeatMode));
}

void FUICommandList::Append(const TSharedRef<FUICommandList>& InCommandsToAppend)
{
	check(&InCommandsToAppend.Get() != this);
	AppendedLists.Add(InCommandsToAppend);
}

const FUIAction* FUICommandList::GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const
{
	if (const FUIAction* Action = UICommandBindingMap.Find(Command))
	{
		return Action;
	}
	for (const TWeakPtr<FUICommandList>& Weak : AppendedLists)
	{
		const TSharedPtr<FUICommandList> List = Weak.Pin();
		const FUIAction* Action = List.IsValid() ? List->GetActionForCommand(Command) : nullptr;
		if (Action)
		{
			return Action;
		}
	}
	return nullptr;
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action && FUIAction(*Action).Execute(); // a copy: the action may change the list
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return !Action || Action->CanExecute();
}

bool FUICommandList::TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	return ExecuteAction(InUICommandInfo);
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const
{
	return GetActionForCommand(InUICommandInfo) != nullptr;
}
