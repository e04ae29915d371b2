// Copyright Velmorant. All Rights Reserved.

#include "Docks/WelcomeDock.h"

namespace WelcomeDock
{
	struct FStep
	{
		const char* Title;
		const char* Text;
	};

	/** The way of the demo. */
	static const FStep Steps[] = {
		{"Add the collision profile", "The notification in the lower right corner offers it. The editor restarts afterwards; nothing else is lost by that."},
		{"Sign in", "Velmorant in the toolbar, then Login. The sample's service knows the user lucia with the password harbor-2026."},
		{"Choose a project", "Harbor Tower, in the list of the developer panel. Set it as default, and tomorrow it is chosen by itself."},
		{"Look through the units", "Open a unit group with a click, search by key code or name, switch to the configurators."},
		{"Make an asset of a configurator", "Mode Configurator, a configurator of the list, Create a data asset. Its menu in the content browser makes the level variant sets and places them into the level."},
		{"Check the unit volumes", "Velmorant, Unit Volume Tools, Check the level: two identifiers of the sample are used twice. The plan hatches those volumes in red."},
		{"Place something", "Drag a unit volume from the Placement tab into the plan. Ctrl+Z takes it back."},
		{"Pick an icon and a colour", "Select the spot at the harbour promenade: its icon and its background are picked in the details panel."},
		{"Save", "Ctrl+S saves all. What is unsaved is counted in the lower right corner."},
	};
}

FWelcomeDock::FWelcomeDock(IWindowServices&, QWidget* Parent)
	: FDockView(Parent)
{
	QScrollArea* const Area = new QScrollArea(this);
	QVBoxLayout* const Outer = new QVBoxLayout(this);
	Outer->setContentsMargins(0, 0, 0, 0);
	Outer->addWidget(Area);
	Area->setFrameShape(QFrame::NoFrame);
	Area->setWidgetResizable(true);
	QWidget* const Page = new QWidget(Area);
	Area->setWidget(Page);
	QVBoxLayout* const Layout = new QVBoxLayout(Page);
	Layout->setContentsMargins(28, 22, 28, 22);
	Layout->setSpacing(4);

	QLabel* const Title = new QLabel(tr("Welcome to Harbor Tower"), Page);
	QFont Large = Title->font();
	Large.setPixelSize(Large.pixelSize() + 9);
	Large.setBold(true);
	Title->setFont(Large);
	Layout->addWidget(Title);
	QLabel* const Intro = new QLabel(tr("A property to try the toolkit on: a copy of your own, on which nothing can break. Close this when you know the way; Help, What to try first (F1) opens it again."), Page);
	Intro->setWordWrap(true);
	Layout->addWidget(Intro);
	Layout->addSpacing(12);
	int Number = 0;
	for (const WelcomeDock::FStep& Step : WelcomeDock::Steps)
	{
		QLabel* const Heading = new QLabel(QStringLiteral("%1.  %2").arg(++Number).arg(tr(Step.Title)), Page);
		QFont Bold = Heading->font();
		Bold.setBold(true);
		Heading->setFont(Bold);
		QLabel* const Text = new QLabel(tr(Step.Text), Page);
		Text->setWordWrap(true);
		Text->setContentsMargins(22, 0, 0, 8);
		Layout->addWidget(Heading);
		Layout->addWidget(Text);
	}
	QPushButton* const Close = new QPushButton(tr("I know the way"), Page);
	Close->setObjectName(QStringLiteral("WelcomeClose"));
	connect(Close, &QPushButton::clicked, this, [Dock = QPointer<QWidget>(Parent)] {
		if (Dock)
		{
			Dock->close();
		}
	});
	Layout->addWidget(Close, 0, Qt::AlignLeft);
	Layout->addStretch(1);
}
