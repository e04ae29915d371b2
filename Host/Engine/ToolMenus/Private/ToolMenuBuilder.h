// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostToolMenus.h"
#include "ToolMenu.h"

/** Makes shown menus out of recipes. */
class FToolMenuBuilder
{
public:
	/** Adds the recipe's sections and entries to a menu that is being made for its context; dynamic entries are made here. */
	static void Append(const UToolMenu& Recipe, UToolMenu& OutGenerated);

	static TSharedRef<SWidget> MakeWidget(UToolMenu& Generated);
	static FHostMenuEntry Describe(const FToolMenuSection& Section, const FToolMenuEntry& Entry, const FToolMenuContext& Context);

private:
	static FToolMenuSection& FindOrInsertSection(const FToolMenuSection& Recipe, UToolMenu& OutGenerated);
	static void InsertEntry(const FToolMenuEntry& Entry, FToolMenuSection& OutSection, int32 DefaultIndex);
	static void AppendDynamic(const FToolMenuEntry& Dynamic, FToolMenuSection& OutSection);

	static TSharedRef<SWidget> MakeEntryWidget(const UToolMenu& Menu, const FToolMenuEntry& Entry);
	static TSharedRef<SWidget> MakeButton(const UToolMenu& Menu, const FToolMenuEntry& Entry);
	static TSharedRef<SWidget> MakeComboButton(const UToolMenu& Menu, const FToolMenuEntry& Entry);
	/** Made anew each time it opens, by whichever of its forms the entry was given. */
	static TSharedRef<SWidget> MakeOpenedMenu(const FToolMenuEntry& Entry, const FToolMenuContext& Context);
};
