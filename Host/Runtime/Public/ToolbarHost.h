// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

class SWidget;

/**
 * The level editor's play toolbar, to which plugins add their buttons, and the menus that open below it: for programs and tests
 * that have no window.
 *
 * To be emptied with Close() before the editor goes down.
 */
class FToolbarHost
{
public:
	/** Makes the toolbar itself; what was added to it before or is added later is shown all the same. */
	static void Register();

	/** The toolbar and what is open below its buttons. Made anew while no menu is open, so that it shows what was added meanwhile. */
	TSharedRef<SWidget> GetContent();

	/**
	 * A button that opens a menu, by its name, label or tool tip. Good until the toolbar is made anew.
	 * @return null with a reason, which names the buttons that there are
	 */
	TSharedPtr<SWidget> FindButton(const FString& Button, FString& OutReason);

	/**
	 * Opens the menu of a button, by its name, label or tool tip; other menus close.
	 * @return null with a reason: no such button, it is disabled, or opens no menu
	 */
	TSharedPtr<SWidget> OpenMenu(const FString& Button, FString& OutReason);

	/** Null while the menu of that button is not open, also when there is no such button. */
	TSharedPtr<SWidget> FindOpenMenu(const FString& Button) const;

	/** Closes the open menu and lets the toolbar go. */
	void Close();

private:
	TSharedPtr<SWidget> Content;
};
