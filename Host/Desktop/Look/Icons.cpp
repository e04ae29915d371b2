// Copyright Velmorant. All Rights Reserved.

#include "Look/Icons.h"

QIcon Icons::Find(const char* Name)
{
	return QIcon(QStringLiteral(":/Icons/%1.svg").arg(QLatin1String(Name)));
}

QString Icons::FindFile(const QString& Name)
{
	const QString File = QStringLiteral(":/Icons/%1.svg").arg(Name);
	return QFile::exists(File) ? File : QString();
}
