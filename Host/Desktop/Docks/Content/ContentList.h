// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Docks/Content/ContentCatalog.h"

#include <functional>

/** What of the catalogue is looked at. */
struct FContentQuery
{
	QString Folder;
	QString Search; // words; everything below the folder then
	QStringList Kinds; // names; none stands for all

	bool operator==(const FContentQuery&) const = default;
};

/** The folders and assets that a query finds, in the order in which they show. */
class FContentList : public QAbstractListModel
{
public:
	enum ERole
	{
		PathRole = Qt::UserRole, // of a folder, or the package's name
		FolderRole, // whether it is one
		KindRole,
		ColorRole,
		UnsavedRole,
	};

	using QAbstractListModel::QAbstractListModel;

	void Show(const FContentCatalog& Catalog, const FContentQuery& Query);

	/** Null for a folder. */
	const FContentItem* GetItem(const QModelIndex& Index) const;
	/** Invalid when it does not show. */
	QModelIndex FindPath(const QString& Path) const;

	/** A person has typed another name for an asset. @return whether it has it now */
	std::function<bool(const QString& Package, const QString& Name)> OnRename;

	//~ Begin QAbstractListModel
	virtual int rowCount(const QModelIndex& Parent = QModelIndex()) const override;
	virtual QVariant data(const QModelIndex& Index, int Role) const override;
	virtual bool setData(const QModelIndex& Index, const QVariant& Value, int Role) override;
	virtual Qt::ItemFlags flags(const QModelIndex& Index) const override;
	//~ End QAbstractListModel

private:
	QVariant DescribeFolder(const QString& Path, int Role) const;
	QVariant DescribeItem(const FContentItem& Item, int Role) const;

	QStringList Folders;
	std::vector<FContentItem> Items;
	QHash<QString, int> Rows; // by path
};
