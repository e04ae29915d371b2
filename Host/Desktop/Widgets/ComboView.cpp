// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ComboView.h"

#include "QtText.h"
#include "Widgets/ComboPopup.h"

FComboView::FComboView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new FContentButton(&Parent))
	, Face(InHost, GetScreen(), GetButton().GetContentLayout())
{
	Face.MakeInert();
	GetButton().SetArrow(true);
	connect(&GetButton(), &QAbstractButton::clicked, this, [this] { Open(); });
}

FComboView::~FComboView()
{
	delete Popup;
}

QString FComboView::NameIt(const FHostWidgetDescription& Description) const
{
	return QtText::From(Description.Value.Get(FString()));
}

void FComboView::Refresh(FSeenWidget& Seen)
{
	TArray<FHostWidgetPart> Parts;
	if (const FHostWidgetPart* Content = Seen.FindPart(EHostPart::Content))
	{
		FHostWidgetPart Part = *Content;
		Part.VerticalAlignment = VAlign_Center;
		Part.Fill = 1.0f;
		Parts.Add(Part);
	}
	Face.Fit(Parts);
	if (Popup && !Seen.GetLook().bOpen)
	{
		Popup->close();
	}
}

void FComboView::Open()
{
	const TSharedPtr<SWidget> Combo = GetWidget();
	if (!Combo.IsValid() || Popup)
	{
		return;
	}
	if (!FHostWidgetAccess::LookOf(*Combo).bOpen)
	{
		Click();
	}
	if (FHostWidgetAccess::LookOf(*Combo).bOpen)
	{
		Popup = new FComboPopup(Host, Combo.ToSharedRef(), GetButton());
		Popup->Open();
	}
}
