// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class FBrushes;

/** Draws assets and folders of the content browser as tiles: thumbnail, colour of the class, name, kind, and whether it is saved. */
class FContentTile : public QStyledItemDelegate
{
public:
	FContentTile(FBrushes& InBrushes, QObject* Parent);

	//~ Begin QStyledItemDelegate
	virtual QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
	virtual void paint(QPainter* Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
	virtual QWidget* createEditor(QWidget* Parent, const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
	virtual void updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
	//~ End QStyledItemDelegate

private:
	void DrawFolder(QPainter& Painter, const QRect& Picture) const;
	void DrawAsset(QPainter& Painter, const QRect& Picture, const QModelIndex& Index) const;
	void DrawTexts(QPainter& Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const;

	FBrushes& Brushes;
	QIcon Folder;
	QIcon Unsaved;
};
