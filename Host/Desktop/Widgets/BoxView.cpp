// Copyright Velmorant. All Rights Reserved.

#include "Widgets/BoxView.h"

FBoxView::FBoxView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new QWidget(&Parent))
	, Layout(new FSlateLayout(Qt::Vertical, &GetScreen()))
	, Children(InHost, GetScreen(), *Layout)
{
}

void FBoxView::Refresh(FSeenWidget& Seen)
{
	const FHostWidgetLook& Look = Seen.GetLook();
	Layout->SetDirection(Look.Arrangement == EHostArrangement::Row ? Qt::Horizontal : Qt::Vertical);
	Layout->SetOverrides(FSizeOverrides::Of(Look));
	Children.Fit(Seen.GetParts());
}
