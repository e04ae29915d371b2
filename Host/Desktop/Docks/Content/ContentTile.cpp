// Copyright Velmorant. All Rights Reserved.

#include "Docks/Content/ContentTile.h"

#include "Docks/Content/ContentList.h"
#include "HostPackages.h"
#include "Look/Brushes.h"
#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"

namespace ContentTile
{
	static const QSize Size(108, 138);
	static const int Margin = 4;
	static const int PictureHeight = 76;
	static const int ColorHeight = 3; // of the strip below the picture
	static const int ThumbnailSize = 48;
	static const int UnsavedSize = 16;
	static const int KindLetters = 2; // where there is no thumbnail
	static const double CornerRadius = 4.0;

	QRect GetCard(const QRect& Tile)
	{
		return Tile.adjusted(Margin, Margin, -Margin, -Margin);
	}

	QRect GetPicture(const QRect& Tile)
	{
		const QRect Card = GetCard(Tile);
		return QRect(Card.left(), Card.top(), Card.width(), PictureHeight);
	}

	QRect GetTexts(const QRect& Tile)
	{
		return GetCard(Tile).adjusted(5, PictureHeight + ColorHeight + 3, -5, -3);
	}

	/** "LV" for "Level Variant Sets": the first letters of its words. */
	QString Abbreviate(const QString& Kind)
	{
		QString Letters;
		for (const QString& Word : Kind.split(QLatin1Char(' '), Qt::SkipEmptyParts))
		{
			Letters += Letters.size() < KindLetters ? QString(Word.at(0).toUpper()) : QString();
		}
		return Letters;
	}
}

FContentTile::FContentTile(FBrushes& InBrushes, QObject* Parent)
	: QStyledItemDelegate(Parent)
	, Brushes(InBrushes)
	, Folder(Icons::Find("Folder"))
	, Unsaved(Icons::Find("Mark.Unsaved"))
{
}

QSize FContentTile::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
	return ContentTile::Size;
}

void FContentTile::paint(QPainter* Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const
{
	Painter->save();
	Painter->setRenderHint(QPainter::Antialiasing);
	const bool bFolder = Index.data(FContentList::FolderRole).toBool();
	const bool bSelected = Option.state.testFlag(QStyle::State_Selected);
	const QRect Card = ContentTile::GetCard(Option.rect);
	QPainterPath Shape;
	Shape.addRoundedRect(Card, ContentTile::CornerRadius, ContentTile::CornerRadius);
	QColor Ground = bFolder ? QColor(Qt::transparent) : Theme::GetColors().Header;
	if (bSelected)
	{
		Ground = Option.palette.color(QPalette::Highlight);
	}
	else if (Option.state.testFlag(QStyle::State_MouseOver))
	{
		Ground = Theme::GetColors().Hover;
	}
	Painter->fillPath(Shape, Ground);
	Painter->setClipPath(Shape);
	if (bFolder)
	{
		DrawFolder(*Painter, ContentTile::GetPicture(Option.rect));
	}
	else
	{
		DrawAsset(*Painter, ContentTile::GetPicture(Option.rect), Index);
	}
	Painter->setClipping(false);
	DrawTexts(*Painter, Option, Index);
	if (Option.state.testFlag(QStyle::State_HasFocus) || (!bFolder && !bSelected))
	{
		const bool bFocus = Option.state.testFlag(QStyle::State_HasFocus);
		Painter->setPen(QPen(bFocus ? Option.palette.color(QPalette::Highlight).lighter(130) : Theme::GetColors().Line, bFocus ? 2.0 : 1.0));
		Painter->drawPath(Shape);
	}
	Painter->restore();
}

void FContentTile::DrawFolder(QPainter& Painter, const QRect& Picture) const
{
	Folder.paint(&Painter, Picture.adjusted(0, 6, 0, -4));
}

void FContentTile::DrawAsset(QPainter& Painter, const QRect& Picture, const QModelIndex& Index) const
{
	const FContentItem& Item = *static_cast<const FContentList*>(Index.model())->GetItem(Index);
	Painter.fillRect(Picture, Theme::GetColors().Field);
	QRect Middle(0, 0, ContentTile::ThumbnailSize, ContentTile::ThumbnailSize);
	Middle.moveCenter(Picture.center());
	const QPixmap Thumbnail = Brushes.Find(Item.Kind->Thumbnail, Middle.size(), Painter.device()->devicePixelRatioF());
	if (!Thumbnail.isNull())
	{
		Painter.drawPixmap(Middle, Thumbnail);
	}
	else
	{
		QFont Font = Painter.font();
		Font.setPixelSize(ContentTile::ThumbnailSize / 2);
		Font.setBold(true);
		Painter.setFont(Font);
		Painter.setPen(Item.Kind->Color);
		Painter.drawText(Picture, Qt::AlignCenter, ContentTile::Abbreviate(Item.Kind->Name));
	}
	Painter.fillRect(QRect(Picture.left(), Picture.bottom() + 1, Picture.width(), ContentTile::ColorHeight), Item.Kind->Color);
	if (Item.bUnsaved)
	{
		Unsaved.paint(&Painter, QRect(Picture.right() - ContentTile::UnsavedSize - 4, Picture.top() + 5, ContentTile::UnsavedSize, ContentTile::UnsavedSize));
	}
}

/** The name in up to two lines, broken anywhere: names of assets have no blanks. */
void FContentTile::DrawTexts(QPainter& Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const
{
	const bool bSelected = Option.state.testFlag(QStyle::State_Selected);
	const bool bFolder = Index.data(FContentList::FolderRole).toBool();
	const QRect Area = ContentTile::GetTexts(Option.rect);
	const QFontMetrics Metrics(Option.font);
	Painter.setFont(Option.font);
	Painter.setPen(Option.palette.color(bSelected ? QPalette::HighlightedText : QPalette::Text));
	const QString Name = Index.data(Qt::DisplayRole).toString();
	QTextLayout Layout(Name, Option.font);
	QTextOption Wrapping(bFolder ? Qt::AlignHCenter : Qt::AlignLeft);
	Wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
	Layout.setTextOption(Wrapping);
	Layout.beginLayout();
	QTextLine First = Layout.createLine();
	First.setLineWidth(Area.width());
	Layout.endLayout();
	const int Rest = First.textStart() + First.textLength();
	const int Align = (bFolder ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
	const QRect Line(Area.left(), Area.top(), Area.width(), Metrics.height());
	Painter.drawText(Line, Align, Name.left(Rest));
	Painter.drawText(Line.translated(0, Metrics.height()), Align, Metrics.elidedText(Name.mid(Rest), Qt::ElideMiddle, Area.width()));

	QFont Small = Option.font;
	Small.setPixelSize(Option.font.pixelSize() - 2);
	Painter.setFont(Small);
	Painter.setPen(bSelected ? Option.palette.color(QPalette::HighlightedText) : Theme::GetColors().Subtle);
	Painter.drawText(Area, Qt::AlignLeft | Qt::AlignBottom, QFontMetrics(Small).elidedText(Index.data(FContentList::KindRole).toString(), Qt::ElideRight, Area.width()));
}

QWidget* FContentTile::createEditor(QWidget* Parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
	QLineEdit* const Edit = new QLineEdit(Parent);
	Edit->setObjectName(QStringLiteral("ContentRename"));
	Edit->setAccessibleName(tr("New name"));
	connect(Edit, &QLineEdit::textChanged, Edit, [Edit](const QString& Text) {
		FString Reason;
		const bool bValid = HostPackages::IsValidAssetName(QtText::ToEditor(Text), &Reason);
		Edit->setProperty("wrong", !bValid);
		Edit->setToolTip(bValid ? QString() : QtText::From(Reason));
		Edit->update();
	});
	return Edit;
}

void FContentTile::updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option, const QModelIndex&) const
{
	const QRect Area = ContentTile::GetTexts(Option.rect);
	Editor->setGeometry(Area.left() - 5, Area.top() - 3, Area.width() + 10, Editor->sizeHint().height());
}
