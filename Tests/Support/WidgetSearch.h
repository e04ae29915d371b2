// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostWidget.h"
#include "Widgets/SWidget.h"

#include <vector>

/** All widgets of the class in Root, itself included, and what is open below it, in order. */
template<typename WidgetType>
std::vector<WidgetType*> AllWidgets(SWidget& Root)
{
	std::vector<WidgetType*> Found;
	if (WidgetType* Fitting = dynamic_cast<WidgetType*>(&Root))
	{
		Found.push_back(Fitting);
	}
	for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Root))
	{
		const std::vector<WidgetType*> Within = AllWidgets<WidgetType>(*Child);
		Found.insert(Found.end(), Within.begin(), Within.end());
	}
	return Found;
}
