// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"

/** Makes a command of a set: used by UI_COMMAND only. */
SLATE_API void UI_COMMAND_Function(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* SubNamespace, const TCHAR* CommandName,
	const TCHAR* CommandNameToolTip, const TCHAR* FriendlyName, const TCHAR* Description, const EUserInterfaceActionType CommandType,
	const FInputChord& DefaultChord, const FInputChord& AlternateDefaultChord = FInputChord());

/** Inside RegisterCommands(): fills the member CommandId. Label and description are narrow literals; LOCTEXT_NAMESPACE is their namespace. */
#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...) \
	UI_COMMAND_Function(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId), TEXT(#CommandId) TEXT("_ToolTip"), TEXT(FriendlyName), TEXT(InDescription), \
		CommandType, InDefaultChord, ##__VA_ARGS__)

/** A set of commands, one instance per editor. CommandContextType is the set itself. */
template<typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	/** Makes the instance and lets it register its commands; a second call does nothing. */
	static void Register()
	{
		if (!IsRegistered())
		{
			const TSharedRef<CommandContextType> NewInstance = MakeShareable(new CommandContextType());
			Instance = NewInstance;
			FInputBindingManager::Get().AddContext(NewInstance);
			static_cast<TCommands<CommandContextType>&>(NewInstance.Get()).RegisterCommands();
		}
	}

	static bool IsRegistered() { return Instance.IsValid(); }

	/** Only while IsRegistered(). */
	static const CommandContextType& Get() { return *Instance.Pin(); }

	virtual void RegisterCommands() = 0;

protected:
	TCommands(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{
	}

private:
	// The binding manager owns the set, so that it goes down with its editor.
	static inline TWeakPtr<CommandContextType> Instance;
};
