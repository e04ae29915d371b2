// Copyright Velmorant. All Rights Reserved.

#include "Widgets/CheckView.h"

#include "QtText.h"

namespace CheckView
{
	Qt::CheckState ToQt(ECheckBoxState State)
	{
		switch (State)
		{
			case ECheckBoxState::Checked: return Qt::Checked;
			case ECheckBoxState::Unchecked: return Qt::Unchecked;
			default: return Qt::PartiallyChecked;
		}
	}
}

FCheckView::FCheckView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new QCheckBox(&Parent))
{
	connect(&GetBox(), &QCheckBox::clicked, this, [this] { Click(); });
}

void FCheckView::Refresh(FSeenWidget& Seen)
{
	const FString& Label = Seen.GetDescription().Label;
	if (!ShownLabel.Equals(Label))
	{
		ShownLabel = Label;
		GetBox().setText(QtText::From(Label).replace(QLatin1Char('&'), QLatin1String("&&")));
	}
	// What a click did to the box is its owner's to say.
	GetBox().setCheckState(CheckView::ToQt(Seen.GetDescription().Checked.Get(ECheckBoxState::Unchecked)));
}
