// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ChildViews.h"
#include "Widgets/WidgetView.h"

#include <memory>

class FWidgetRoot;

/**
 * What is open below a combo box: its own menu, or its options one below the other. Closing it closes the box.
 *
 * It keeps the option widgets for as long as it is open, because each asking makes them anew.
 */
class FComboPopup : public QFrame
{
public:
	FComboPopup(IViewHost& InHost, const TSharedRef<SWidget>& InCombo, QWidget& InButton);
	virtual ~FComboPopup() override;

	void Open();

protected:
	//~ Begin QWidget
	virtual void closeEvent(QCloseEvent* Event) override;
	virtual void hideEvent(QHideEvent* Event) override;
	virtual void keyPressEvent(QKeyEvent* Event) override;
	virtual bool eventFilter(QObject* Watched, QEvent* Event) override;
	//~ End QWidget

private:
	void ShowMenu();
	void ShowOptions();
	void Pick(int Index);
	void SetCurrent(int Index);
	void TellClosed();

	IViewHost& Host;
	TWeakPtr<SWidget> Combo;
	QPointer<QWidget> Button;
	TArray<TSharedRef<SWidget>> Options;
	std::unique_ptr<FChildViews> OptionViews;
	QScrollArea* Area;
	QWidget* Body = nullptr;
	int Current = -1;
	bool bTold = false;
};
