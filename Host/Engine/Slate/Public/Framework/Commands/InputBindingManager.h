// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"

template<typename T>
class THostState;

/** All command contexts of the running editor with their commands. */
class SLATE_API FInputBindingManager
{
public:
	static FInputBindingManager& Get();

	/** Null when there is no such context or command. */
	TSharedPtr<FUICommandInfo> FindCommandInContext(const FName InBindingContext, const FName CommandName) const;

	/** In order of registration. */
	void GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;
	TSharedPtr<FBindingContext> GetContextByName(const FName InContextName) const;

	/** Keeps the context, and so its command set, until it is removed or the editor goes down. */
	void AddContext(const TSharedRef<FBindingContext>& InContext);
	void AddCommand(const TSharedRef<FUICommandInfo>& InCommand);

private:
	friend class THostState<FInputBindingManager>;

	FInputBindingManager() = default;

	struct FContextEntry
	{
		TSharedPtr<FBindingContext> Context;
		TArray<TSharedPtr<FUICommandInfo>> Commands;
	};

	const FContextEntry* FindEntry(const FName InContextName) const;

	TArray<FContextEntry> Contexts; // in order of registration
};
