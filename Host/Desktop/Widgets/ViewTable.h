// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

#include <memory>

/** Which view shows which kind of widget. */
namespace ViewTable
{
	/** By the widget's role; what has none of its own is a box around its parts. */
	std::unique_ptr<FWidgetView> Make(const FSeenWidget& Seen, IViewHost& Host, QWidget& Parent);
}
