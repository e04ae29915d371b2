// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ViewHost.h"

/** A menu of the editor that is open. Closing it closes it for the editor as well. */
class FMenuPopup : public QMenu
{
public:
	/** @param InOpener the widget whose menu it is; told when a person closes the menu */
	FMenuPopup(IViewHost& InHost, const TSharedRef<SWidget>& InMenu, const TSharedRef<SWidget>& InOpener, QWidget& InParent);

	/** Puts what stands in a menu widget into a Qt menu. */
	static void Fill(QMenu& Target, const TSharedRef<SWidget>& Menu, IViewHost& Host);

protected:
	virtual void hideEvent(QHideEvent* Event) override;

private:
	IViewHost& Host;
	TWeakPtr<SWidget> Opener;
};
