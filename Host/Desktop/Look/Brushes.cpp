// Copyright Velmorant. All Rights Reserved.

#include "Look/Brushes.h"

#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"

namespace Brushes
{
	static const QSize IconSize(16, 16);

	QImage Fit(const QImage& Whole, QSize Pixels)
	{
		return Whole.isNull() ? Whole : Whole.scaled(Pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
	}
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
	const QByteArray File = Source ? Source(Name) : QByteArray();
	QPixmap Picture = File.isEmpty() ? Read(Name, Pixels) : QPixmap::fromImage(Brushes::Fit(QImage::fromData(File), Pixels));
	Picture.setDevicePixelRatio(Scale);
	if (File.isEmpty())
	{
		Pictures.insert(Key, Picture);
	}
	return Picture;
}

QPixmap FBrushes::Read(const QString& Name, QSize Pixels)
{
	const QString Own = Icons::FindFile(Name);
	if (!Own.isEmpty())
	{
		return Icons::Draw(Own, Pixels);
	}
	if (!QFile::exists(Name))
	{
		return QPixmap(); // asked for it, the reader would try every ending that it knows
	}
	QImageReader Reader(Name);
	return QPixmap::fromImage(Brushes::Fit(Reader.read(), Pixels));
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
