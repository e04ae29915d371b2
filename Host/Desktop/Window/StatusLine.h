// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class IWindowServices;

/** The line below everything: project, who is signed in, the project of the service, and how much is unsaved. */
class FStatusLine : public QStatusBar
{
public:
	FStatusLine(IWindowServices& InServices, QWidget* Parent);

	/** Once a frame. */
	void Refresh();

private:
	QLabel* AddLabel(const char* Name, const QString& ToolTip);
	QString DescribeUser() const;

	IWindowServices& Services;
	QLabel* Project;
	QLabel* User;
	QLabel* Chosen;
	QLabel* Unsaved;
};
