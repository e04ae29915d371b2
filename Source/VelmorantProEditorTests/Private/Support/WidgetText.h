// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

namespace VelmorantTests
{
	/** The texts that stand in a widget and those below it, in order; collapsed ones included, empty ones left out. */
	TArray<FString> CollectTexts(const TSharedRef<SWidget>& Widget);

	/** Whether a text stands in it that neither its own widget nor one around it disables. */
	bool IsTextEnabled(const TSharedRef<SWidget>& Widget, const TCHAR* Text);

	/** How many widgets of a class there are, "SComboBox" for one; the template's arguments do not count. */
	int32 CountWidgets(const TSharedRef<SWidget>& Widget, const TCHAR* Class);
}
