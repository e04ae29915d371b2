// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostWidget.h"
#include "Widgets/ViewHost.h"

/** A widget as it is within one frame. What costs more is asked for when it is needed, once. */
class FSeenWidget
{
public:
	explicit FSeenWidget(const TSharedRef<SWidget>& InWidget)
		: Widget(InWidget)
		, Description(FHostWidgetAccess::Describe(*InWidget))
	{
	}

	const TSharedRef<SWidget>& GetWidget() const { return Widget; }
	const FHostWidgetDescription& GetDescription() const { return Description; }
	const FHostWidgetLook& GetLook();
	const TArray<FHostWidgetPart>& GetParts();
	/** Null when there is none. */
	const FHostWidgetPart* FindPart(EHostPart Kind);

private:
	TSharedRef<SWidget> Widget;
	FHostWidgetDescription Description;
	TOptional<FHostWidgetLook> Look;
	TOptional<TArray<FHostWidgetPart>> Parts;
};

/**
 * One widget of the editor on the screen.
 *
 * A view belongs to a place in the window, not to a widget: each frame it is shown the widget that is in its place, possibly another one of
 * the same kind. Between frames it only knows the widget weakly, to hand on what a person does. Its Qt widget lives as long as the view.
 */
class FWidgetView : public QObject
{
public:
	FWidgetView(IViewHost& InHost, QWidget& InScreen);
	virtual ~FWidgetView() override;

	/** What Qt shows; becomes a child of the layout's parent. */
	QWidget& GetScreen() const { return *Screen; }

	/** Once a frame. */
	void Show(FSeenWidget& Seen);

protected:
	/** Brings the Qt widget in step; whether it shows, can be used, and its names are seen to. */
	virtual void Refresh(FSeenWidget& Seen) = 0;

	/** How it is called where its description has no words for it. */
	virtual QString NameIt(const FHostWidgetDescription& Description) const;

	FHostInputResult Give(const FHostInput& Input) const;
	FHostInputResult Click() const { return Give(FHostInput()); }
	/** Null when it is gone. */
	TSharedPtr<SWidget> GetWidget() const { return Widget.Pin(); }

	IViewHost& Host;

private:
	QPointer<QWidget> Screen;
	TWeakPtr<SWidget> Widget;
	FString ShownToolTip;
	FName ShownName;
};
