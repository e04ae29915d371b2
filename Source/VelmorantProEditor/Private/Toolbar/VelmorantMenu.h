// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FUICommandList;
class SWidget;

/** The "Velmorant" menu of the level editor's play toolbar. */
namespace VelmorantMenu
{
	/** Adds the combo button to the toolbar. Commands must map the settings commands; the toolbar keeps the list. */
	void AddToToolbar(const TSharedRef<FUICommandList>& Commands);

	/** The menu itself, to be made for each opening: user and version are those of that moment. */
	TSharedRef<SWidget> MakeContent(TSharedRef<FUICommandList> Commands);
}
