// Copyright Velmorant. All Rights Reserved.

#include "Widgets/WidgetView.h"

#include "QtText.h"

const FHostWidgetLook& FSeenWidget::GetLook()
{
	if (!Look.IsSet())
	{
		Look = FHostWidgetAccess::LookOf(*Widget);
	}
	return Look.GetValue();
}

const TArray<FHostWidgetPart>& FSeenWidget::GetParts()
{
	if (!Parts.IsSet())
	{
		Parts = FHostWidgetAccess::PartsOf(Widget);
	}
	return Parts.GetValue();
}

const FHostWidgetPart* FSeenWidget::FindPart(EHostPart Kind)
{
	return GetParts().FindByPredicate([Kind](const FHostWidgetPart& Part) { return Part.Kind == Kind; });
}

FWidgetView::FWidgetView(IViewHost& InHost, QWidget& InScreen)
	: Host(InHost)
	, Screen(&InScreen)
{
}

FWidgetView::~FWidgetView()
{
	if (Screen)
	{
		Screen->hide();
		Screen->deleteLater(); // it may be just telling what was done to it
	}
}

void FWidgetView::Show(FSeenWidget& Seen)
{
	Widget = Seen.GetWidget();
	const FHostWidgetDescription& Description = Seen.GetDescription();
	if (Screen->isEnabledTo(Screen->parentWidget()) != Description.bEnabled)
	{
		Screen->setEnabled(Description.bEnabled);
	}
	if (!ShownToolTip.Equals(Description.ToolTip))
	{
		ShownToolTip = Description.ToolTip;
		Screen->setToolTip(QtText::From(ShownToolTip));
	}
	if (ShownName != Description.Name)
	{
		ShownName = Description.Name;
		Screen->setObjectName(QtText::From(ShownName));
	}
	const QString Name = NameIt(Description);
	if (Screen->accessibleName() != Name)
	{
		Screen->setAccessibleName(Name);
	}
	Refresh(Seen);
}

QString FWidgetView::NameIt(const FHostWidgetDescription& Description) const
{
	const FString& Name = Description.Label.IsEmpty() ? Description.ToolTip : Description.Label;
	return QtText::From(Name);
}

FHostInputResult FWidgetView::Give(const FHostInput& Input) const
{
	const TSharedPtr<SWidget> Held = Widget.Pin();
	return Held.IsValid() ? Host.Give(Held.ToSharedRef(), Input) : FHostInputResult::Refused(TEXT("is gone"));
}
