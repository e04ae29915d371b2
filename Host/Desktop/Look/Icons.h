// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

/** The window's own pictures, drawn from Resources/Icons. */
namespace Icons
{
	/** @param Name of the file, without its extension; it must be there */
	QIcon Find(const char* Name);

	/** Of a name that may not be there, or empty: the names of the editor's own icons, such as "Icons.Settings", are among them. */
	QString FindFile(const QString& Name);

	/** As large as fits, in pixels of the screen. @param File from FindFile() */
	QPixmap Draw(const QString& File, QSize Pixels);
}
