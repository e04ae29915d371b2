// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ButtonView.h"

class FComboPopup;

/** A button that shows what is chosen, and opens a list to choose from. */
class FComboView : public FWidgetView
{
public:
	FComboView(IViewHost& InHost, QWidget& Parent);
	virtual ~FComboView() override;

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
	virtual QString NameIt(const FHostWidgetDescription& Description) const override;

private:
	FContentButton& GetButton() const { return static_cast<FContentButton&>(GetScreen()); }
	void Open();

	FChildViews Face;
	QPointer<FComboPopup> Popup; // while it is open
};
