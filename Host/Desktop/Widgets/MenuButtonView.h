// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ButtonView.h"

class FMenuPopup;

/** A button that opens a menu. */
class FMenuButtonView : public FWidgetView
{
public:
	FMenuButtonView(IViewHost& InHost, QWidget& Parent);
	virtual ~FMenuButtonView() override;

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	FContentButton& GetButton() const { return static_cast<FContentButton&>(GetScreen()); }
	void FollowMenu(FSeenWidget& Seen);

	FChildViews Face;
	FName ShownIcon;
	QPointer<FMenuPopup> Menu; // while it is open
};
