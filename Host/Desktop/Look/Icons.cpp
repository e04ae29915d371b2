// Copyright Velmorant. All Rights Reserved.

#include "Look/Icons.h"

#include <QIconEngine>

namespace Icons
{
	/** Draws a picture when it is seen. Qt's own engine for such files is a plugin, whose search takes longer than all the drawing. */
	class FEngine : public QIconEngine
	{
	public:
		explicit FEngine(const QString& InFile)
			: File(InFile)
		{
		}

		virtual void paint(QPainter* Painter, const QRect& Rect, QIcon::Mode Mode, QIcon::State State) override
		{
			const double Scale = Painter->device()->devicePixelRatioF();
			const QPixmap Picture = pixmap(Rect.size() * Scale, Mode, State);
			QRectF Room(QPointF(), QSizeF(Picture.size()) / Scale);
			Room.moveCenter(QRectF(Rect).center());
			Painter->drawPixmap(Room, Picture, QRectF(Picture.rect()));
		}

		virtual QPixmap pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State) override
		{
			const QPixmap Picture = Draw(File, Size);
			if (Mode == QIcon::Normal)
			{
				return Picture;
			}
			QStyleOption Option;
			Option.palette = QApplication::palette();
			return QApplication::style()->generatedIconPixmap(Mode, Picture, &Option);
		}

		virtual QIconEngine* clone() const override { return new FEngine(File); }

	private:
		QString File;
	};
}

QIcon Icons::Find(const char* Name)
{
	return QIcon(new FEngine(QStringLiteral(":/Icons/%1.svg").arg(QLatin1String(Name))));
}

QString Icons::FindFile(const QString& Name)
{
	const QString File = QStringLiteral(":/Icons/%1.svg").arg(Name);
	return QFile::exists(File) ? File : QString();
}

QPixmap Icons::Draw(const QString& File, QSize Pixels)
{
	const QString Key = QStringLiteral("%1 %2x%3").arg(File).arg(Pixels.width()).arg(Pixels.height());
	QPixmap Picture;
	if (QPixmapCache::find(Key, &Picture))
	{
		return Picture;
	}
	QSvgRenderer Drawing(File);
	Picture = QPixmap(Drawing.defaultSize().scaled(Pixels, Qt::KeepAspectRatio));
	Picture.fill(Qt::transparent);
	QPainter Painter(&Picture);
	Drawing.render(&Painter);
	Painter.end();
	QPixmapCache::insert(Key, Picture);
	return Picture;
}
