// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"

class UDataTable;

/** An icon font of the project with as many icons as wanted, in two styles, each icon with three search words. */
namespace IconTable
{
	inline const TCHAR* const Package = TEXT("/Game/FontIcons/Large");
	inline const TCHAR* const FontID = TEXT("Large");
	inline const TCHAR* const Styles[] = {TEXT("Solid"), TEXT("Regular")}; // every other icon has the second one, too

	/** The font's table, unsaved. */
	UDataTable* Make(int64 NumIcons);

	FName GetIconName(int64 Index);

	/** Enters the font in the settings of the running editor. */
	void EnterInSettings();
}
