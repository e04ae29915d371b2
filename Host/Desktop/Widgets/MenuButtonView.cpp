// Copyright Velmorant. All Rights Reserved.

#include "Widgets/MenuButtonView.h"

#include "Look/Brushes.h"
#include "QtText.h"
#include "Widgets/MenuPopup.h"

FMenuButtonView::FMenuButtonView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new FContentButton(&Parent))
	, Face(InHost, GetScreen(), GetButton().GetContentLayout())
{
	Face.MakeInert();
	connect(&GetButton(), &QAbstractButton::clicked, this, [this] { Click(); });
}

FMenuButtonView::~FMenuButtonView()
{
	delete Menu;
}

void FMenuButtonView::Refresh(FSeenWidget& Seen)
{
	const FHostWidgetLook& Look = Seen.GetLook();
	GetButton().SetArrow(Look.bHasDownArrow);
	const FHostWidgetPart* Content = Seen.FindPart(EHostPart::Content);
	if (Content != nullptr && Content->Widget != SNullWidget::NullWidget)
	{
		Face.Fit({*Content});
	}
	else
	{
		const FName Icon = Look.Brush.IsSet() ? Look.Brush->GetResourceName() : FName();
		if (ShownIcon != Icon)
		{
			ShownIcon = Icon;
			GetButton().setIcon(Icon.IsNone() ? QIcon() : Host.GetBrushes().FindIcon(Look.Brush.GetValue()));
		}
		GetButton().SetFlat(!Icon.IsNone());
		GetButton().SetCaption(QtText::From(Seen.GetDescription().Label));
	}
	FollowMenu(Seen);
}

/** Whoever opened or closed it: a person, a script, or an entry that was chosen. */
void FMenuButtonView::FollowMenu(FSeenWidget& Seen)
{
	const FHostWidgetPart* Open = Seen.FindPart(EHostPart::Menu);
	if (Open == nullptr)
	{
		if (Menu)
		{
			Menu->close();
		}
		return;
	}
	if (!Menu)
	{
		Menu = new FMenuPopup(Host, Open->Widget, Seen.GetWidget(), GetButton());
		Menu->popup(GetButton().mapToGlobal(QPoint(0, GetButton().height())));
	}
}
