// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class FDockView;
class IWindowServices;

/** The docks that the window always has; each row is one. */
namespace DockViews
{
	struct FKind
	{
		const char* Name; // by which its place is remembered; never shown
		const char* Title;
		Qt::DockWidgetArea Area;
		bool bOpenAtFirst;
		FDockView* (*Make)(IWindowServices& Services, QWidget* Parent);
		int Stack = 0; // docks of one area and stack are tabs of each other; stacks lie side by side, in order of their first docks
	};

	const std::vector<FKind>& GetAll();
}
