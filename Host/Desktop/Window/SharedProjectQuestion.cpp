// Copyright Velmorant. All Rights Reserved.

#include "Window/SharedProjectQuestion.h"

#include "Session/ProjectLock.h"

bool SharedProjectQuestion::MayShare(const FProjectLock& Lock, const QString& Project)
{
	QMessageBox Box(QMessageBox::Warning, QObject::tr("Open already"),
		QObject::tr("%1 is open in another window already (%2).\n\nWhat one of them saves, the other does not see before it reads it again, and the last one to save wins.").arg(Project, Lock.DescribeOwner()));
	Box.setObjectName(QStringLiteral("OpenAlready"));
	const QPushButton* const Share = Box.addButton(QObject::tr("Open it here as well"), QMessageBox::AcceptRole);
	Box.setDefaultButton(Box.addButton(QMessageBox::Cancel));
	Box.exec();
	return Box.clickedButton() == Share;
}
