// Copyright Velmorant. All Rights Reserved.

#include "Widgets/WidgetRoot.h"

FWidgetRoot::FWidgetRoot(IViewHost& InHost, std::function<TSharedPtr<SWidget>()> InFind, QWidget* Parent)
	: QWidget(Parent)
	, Host(InHost)
	, Find(std::move(InFind))
	, Layout(new FSlateLayout(Qt::Vertical, this))
	, Children(InHost, *this, *Layout)
{
	Host.AddRoot(*this);
	Refresh();
}

FWidgetRoot::~FWidgetRoot()
{
	Host.RemoveRoot(*this);
}

void FWidgetRoot::Refresh()
{
	const TSharedPtr<SWidget> Tree = Find();
	TArray<FHostWidgetPart> Parts;
	if (Tree.IsValid())
	{
		Parts.Add(FHostWidgetPart{Tree.ToSharedRef(), EHostPart::Content, {}, HAlign_Fill, VAlign_Fill, 1.0f, 0.0f});
	}
	Children.Fit(Parts);
}
