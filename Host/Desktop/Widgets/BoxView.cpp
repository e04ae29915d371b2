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
	TArray<FHostWidgetPart> Parts = Seen.GetParts();
	const FString& Role = Seen.GetDescription().Role;
	const bool bWraps = Parts.Num() == 1 && Role != TEXT("vertical") && Role != TEXT("horizontal") && Role != TEXT("panel");
	if (bWraps)
	{
		Parts[0].Fill = 1.0f; // what wraps one widget gives it all of its room
	}
	Children.Fit(Parts);
}
