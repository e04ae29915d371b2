// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Styling/SlateBrush.h"

#include <functional>

/** The pictures of the editor's brushes, read once. */
class FBrushes
{
public:
	/** @param Scale pixels of the screen for each of Qt's. Null when there is no such picture, or none that can be read. */
	QPixmap Find(const FSlateBrush& Brush, QSize Size, double Scale);

	/** The same in a size that Qt asks for. */
	QIcon FindIcon(const FSlateBrush& Brush);

	/** Asked for the file of a picture that is no file on disk; empty when it knows none of that name. What it gives is not kept. */
	using FSource = std::function<QByteArray(const QString& Name)>;
	void SetSource(FSource InSource) { Source = std::move(InSource); }

	/** Where pictures were changed on disk, they are read again. */
	void Forget() { Pictures.clear(); }

private:
	QPixmap Read(const QString& Name, QSize Pixels);

	QHash<QString, QPixmap> Pictures; // by name and size
	FSource Source;
};
