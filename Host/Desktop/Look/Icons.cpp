// Copyright Velmorant. All Rights Reserved.

#include "Look/Icons.h"

QIcon Icons::Find(const char* Name)
{
	return QIcon(QStringLiteral(":/Icons/%1.svg").arg(QLatin1String(Name)));
}
