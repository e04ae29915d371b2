// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include <functional>

/** A line below the toolbar that says something and offers one thing to do about it, until it is answered. It asks for no answer. */
class FNoticeBar : public QToolBar
{
public:
	explicit FNoticeBar(QWidget* Parent);

	/** In place of what it said before. */
	void Show(const QString& Text, const QString& Details, const QString& Offer, std::function<void()> InAct);

private:
	QLabel* Text;
	QPushButton* Offer;
	std::function<void()> Act;
};
