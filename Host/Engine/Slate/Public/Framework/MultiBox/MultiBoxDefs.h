// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

enum class EMultiBoxType : uint8
{
	MenuBar,
	ToolBar,
	VerticalToolBar,
	SlimHorizontalToolBar,
	UniformToolBar,
	Menu,
	ButtonRow,
	SlimHorizontalUniformToolBar,
};

enum class EMultiBlockType : uint8
{
	None = 0,
	ButtonRow,
	EditableText,
	Heading,
	MenuEntry,
	Separator,
	ToolBarButton,
	ToolBarComboButton,
	Widget,
};
