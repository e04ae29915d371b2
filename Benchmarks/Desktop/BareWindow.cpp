// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "BareWindow.h"

#include <QStringListModel>

int BareWindow::Run()
{
	QStringListModel Model({QStringLiteral("Torre Alba"), QStringLiteral("Torre Brisa"), QStringLiteral("Torre Coral")});
	QMainWindow Window;
	QListView* const List = new QListView;
	List->setModel(&Model);
	Window.setCentralWidget(List);
	Window.resize(1440, 900);
	Window.show();
	return Window.grab().isNull() ? 1 : 0;
}
