// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ChildViews.h"

#include "Widgets/ViewTable.h"

FChildViews::FChildViews(IViewHost& InHost, QWidget& InBox, FSlateLayout& InLayout)
	: Host(InHost)
	, Box(InBox)
	, Layout(InLayout)
{
}

FChildViews::~FChildViews() = default;

void FChildViews::Fit(const TArray<FHostWidgetPart>& Parts)
{
	while (static_cast<int32>(Places.size()) > Parts.Num())
	{
		FPlace& Last = Places.back();
		Layout.RemoveAt(static_cast<int>(Places.size()) - 1);
		if (!Last.View)
		{
			Last.Screen->deleteLater();
		}
		Places.pop_back();
	}
	while (static_cast<int32>(Places.size()) < Parts.Num())
	{
		FPlace& Place = Places.emplace_back();
		Place.Screen = new QWidget(&Box);
		Place.Screen->hide();
		Layout.Add(Place.Screen, FSlotGeometry());
	}
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		FitPlace(Index, Parts[Index]);
	}
}

void FChildViews::FitPlace(int Index, const FHostWidgetPart& Part)
{
	FPlace& Place = Places[static_cast<std::size_t>(Index)];
	FSeenWidget Seen(Part.Widget);
	if (!Seen.GetDescription().bVisible)
	{
		Place.Screen->hide();
		return;
	}
	if (!Place.View || !Place.Role.Equals(Seen.GetDescription().Role))
	{
		Place.Role = Seen.GetDescription().Role;
		std::unique_ptr<FWidgetView> View = ViewTable::Make(Seen, Host, Box);
		Layout.Replace(Index, &View->GetScreen());
		if (!Place.View)
		{
			Place.Screen->deleteLater();
		}
		Place.View = std::move(View);
		Place.Screen = &Place.View->GetScreen();
		Place.Screen->setAttribute(Qt::WA_TransparentForMouseEvents, bInert);
		if (bInert)
		{
			Place.Screen->setFocusPolicy(Qt::NoFocus);
		}
	}
	Layout.SetSlot(Index, FSlotGeometry::Of(Part));
	Place.View->Show(Seen);
	if (Place.Screen->isHidden())
	{
		Place.Screen->show();
	}
}

std::vector<QWidget*> FChildViews::GetScreens() const
{
	std::vector<QWidget*> Screens;
	for (const FPlace& Place : Places)
	{
		if (!Place.Screen->isHidden())
		{
			Screens.push_back(Place.Screen);
		}
	}
	return Screens;
}
