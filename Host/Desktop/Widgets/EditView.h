// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

/** A field to type into: texts, passwords, and what is searched for. */
class FEditView : public FWidgetView
{
public:
	FEditView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
	virtual bool eventFilter(QObject* Watched, QEvent* Event) override;
	virtual QString NameIt(const FHostWidgetDescription& Description) const override;

private:
	QLineEdit& GetField() const { return static_cast<QLineEdit&>(GetScreen()); }
	void TellTyped(const QString& Text);
	void Commit(ETextCommit::Type How);
	void ShowError(const FString& Error);

	FString ShownText; // as the widget had it last
	FString ShownHint;
	FString ShownError;
	bool bTyped = false; // something that was not committed
	bool bSearch = false;
	bool bRefreshing = false;
};
