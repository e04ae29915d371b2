// Copyright Velmorant. All Rights Reserved.

#include "Window/NoticeBar.h"

#include "Look/Icons.h"

namespace NoticeBar
{
	static const int IconSize = 16;
}

FNoticeBar::FNoticeBar(QWidget* Parent)
	: QToolBar(Parent)
	, Text(new QLabel(this))
	, Offer(new QPushButton(this))
{
	setObjectName(QStringLiteral("Notice"));
	setWindowTitle(tr("Notice"));
	setMovable(false);
	toggleViewAction()->setVisible(false); // it comes and goes by itself
	QLabel* const Icon = new QLabel(this);
	Icon->setPixmap(Icons::Find("Icons.Warning").pixmap(NoticeBar::IconSize));
	Icon->setContentsMargins(8, 0, 4, 0);
	Text->setObjectName(QStringLiteral("NoticeText"));
	Text->setTextFormat(Qt::PlainText);
	Text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
	Offer->setObjectName(QStringLiteral("NoticeOffer"));
	QPushButton* const Later = new QPushButton(tr("Not now"), this);
	Later->setObjectName(QStringLiteral("NoticeLater"));
	connect(Offer, &QPushButton::clicked, this, [this] {
		hide();
		const std::function<void()> Held = Act; // it may show the next notice
		Held();
	});
	connect(Later, &QPushButton::clicked, this, &QWidget::hide);
	addWidget(Icon);
	addWidget(Text);
	addWidget(Offer);
	addWidget(Later);
	hide();
}

void FNoticeBar::Show(const QString& InText, const QString& Details, const QString& InOffer, std::function<void()> InAct)
{
	Text->setText(InText);
	Text->setToolTip(Details);
	setAccessibleName(InText);
	Offer->setText(InOffer);
	Act = std::move(InAct);
	show();
}
