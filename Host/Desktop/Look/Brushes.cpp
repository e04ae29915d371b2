// Copyright Velmorant. All Rights Reserved.

#include "Look/Brushes.h"

#include "Look/Theme.h"
#include "QtText.h"

namespace Brushes
{
	static const QSize IconSize(16, 16);

}

QPixmap FBrushes::Find(const FSlateBrush& Brush, QSize Size, double Scale)
{
	const QString Name = QtText::From(Brush.GetResourceName());
	if (Name.isEmpty() || Size.isEmpty())
	{
		return QPixmap();
	}
	const QSize Pixels = Size * Scale;
	const QString Key = QStringLiteral("%1|%2x%3").arg(Name).arg(Pixels.width()).arg(Pixels.height());
	const auto Known = Pictures.constFind(Key);
	if (Known != Pictures.constEnd())
	{
		return *Known;
	}
	QPixmap Picture = QPixmap::fromImage(Read(Name, Pixels));
	Picture.setDevicePixelRatio(Scale);
	Pictures.insert(Key, Picture);
	return Picture;
}

QImage FBrushes::Read(const QString& Name, QSize Pixels)
{
	QImageReader Reader(Name);
	if (!Reader.canRead())
	{
		return QImage();
	}
	const QImage Whole = Reader.read();
	return Whole.isNull() ? Whole : Whole.scaled(Pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QIcon FBrushes::FindIcon(const FSlateBrush& Brush)
{
	QIcon Icon;
	for (const double Scale : {1.0, 2.0})
	{
		const QPixmap Picture = Find(Brush, Brushes::IconSize, Scale);
		if (!Picture.isNull())
		{
			Icon.addPixmap(Picture);
		}
	}
	return Icon;
}
