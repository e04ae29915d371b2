// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidget.h"
#include "ToolMenuContext.h"

/** One entry of a menu as a person would see it. */
struct FHostMenuEntry
{
	FName Section;
	FString SectionLabel;
	FName Name;
	FString Label;
	FString ToolTip;
	FName IconStyle; // style set and key of its icon; None without one
	FName IconKey;
	bool bEnabled = true;
	bool bOpensMenu = false;
};

/** The menus of the running editor, from a person's side. */
namespace HostToolMenus
{
	/** The menus are ready: runs the start-up callbacks, once. Does nothing but remember when there is no user interface. */
	void Start();

	/** Forgets all menus, owners and callbacks. */
	void Stop();

	/** The visible entries, in order. Empty for a menu that nobody made. */
	TArray<FHostMenuEntry> List(FName Menu, const FToolMenuContext& Context);

	/** Runs the entry of that label, or else of that name. Refuses what is not there, hidden, disabled, or does nothing. */
	FHostInputResult Run(FName Menu, const FToolMenuContext& Context, const FString& LabelOrName);

	/** The menu as a widget tree, to look at and to click in. */
	TSharedRef<SWidget> Open(FName Menu, const FToolMenuContext& Context);
}
