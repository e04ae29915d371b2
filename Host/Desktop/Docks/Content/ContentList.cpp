// Copyright Velmorant. All Rights Reserved.

#include "Docks/Content/ContentList.h"

#include "HostSearchWords.h"
#include "QtText.h"

namespace ContentList
{
	bool IsBelow(const QString& Path, const QString& Folder)
	{
		return Path.startsWith(Folder) && (Path.size() == Folder.size() || Path.at(Folder.size()) == QLatin1Char('/'));
	}

	QString GetName(const QString& Path)
	{
		return Path.mid(Path.lastIndexOf(QLatin1Char('/')) + 1);
	}
}

void FContentList::Show(const FContentCatalog& Catalog, const FContentQuery& Query)
{
	beginResetModel();
	Folders.clear();
	Items.clear();
	Rows.clear();
	const bool bSearching = !Query.Search.trimmed().isEmpty() || !Query.Kinds.isEmpty();
	for (const QString& Folder : Catalog.GetFolders())
	{
		if (!bSearching && Folder.left(Folder.lastIndexOf(QLatin1Char('/'))) == Query.Folder)
		{
			Rows.insert(Folder, static_cast<int>(Folders.size()));
			Folders.append(Folder);
		}
	}
	const FHostSearchWords Words(QtText::ToEditor(Query.Search));
	for (const FContentItem& Item : Catalog.GetItems())
	{
		const bool bInPlace = bSearching ? ContentList::IsBelow(Item.Folder, Query.Folder) : Item.Folder == Query.Folder;
		const bool bWanted = bInPlace && (Query.Kinds.isEmpty() || Query.Kinds.contains(Item.Kind->Name));
		if (bWanted && (!bSearching || Words.AreIn(QtText::ToEditor(Item.Name + QLatin1Char(' ') + Item.Kind->Name))))
		{
			Rows.insert(Item.Package, static_cast<int>(Folders.size()) + static_cast<int>(Items.size()));
			Items.push_back(Item);
		}
	}
	endResetModel();
}

const FContentItem* FContentList::GetItem(const QModelIndex& Index) const
{
	const int Row = Index.row() - static_cast<int>(Folders.size());
	return Index.isValid() && Row >= 0 && Row < static_cast<int>(Items.size()) ? &Items[static_cast<std::size_t>(Row)] : nullptr;
}

QModelIndex FContentList::FindPath(const QString& Path) const
{
	const auto Found = Rows.constFind(Path);
	return Found != Rows.constEnd() ? index(*Found) : QModelIndex();
}

int FContentList::rowCount(const QModelIndex& Parent) const
{
	return Parent.isValid() ? 0 : static_cast<int>(Folders.size()) + static_cast<int>(Items.size());
}

QVariant FContentList::data(const QModelIndex& Index, int Role) const
{
	if (!Index.isValid())
	{
		return QVariant();
	}
	const FContentItem* const Item = GetItem(Index);
	return Item != nullptr ? DescribeItem(*Item, Role) : DescribeFolder(Folders.at(Index.row()), Role);
}

QVariant FContentList::DescribeFolder(const QString& Path, int Role) const
{
	switch (Role)
	{
		case Qt::DisplayRole: return ContentList::GetName(Path);
		case Qt::ToolTipRole: return Path;
		case Qt::AccessibleTextRole: return tr("Folder %1").arg(ContentList::GetName(Path));
		case PathRole: return Path;
		case FolderRole: return true;
		default: return QVariant();
	}
}

QVariant FContentList::DescribeItem(const FContentItem& Item, int Role) const
{
	switch (Role)
	{
		case Qt::DisplayRole:
		case Qt::EditRole: return Item.Name;
		case Qt::ToolTipRole: return tr("%1\n%2%3").arg(Item.Package, Item.Kind->Name, Item.bUnsaved ? tr("\nHas changes that are not saved") : QString());
		case Qt::AccessibleTextRole: return tr("%1, %2%3").arg(Item.Name, Item.Kind->Name, Item.bUnsaved ? tr(", unsaved") : QString());
		case PathRole: return Item.Package;
		case FolderRole: return false;
		case KindRole: return Item.Kind->Name;
		case ColorRole: return Item.Kind->Color;
		case UnsavedRole: return Item.bUnsaved;
		default: return QVariant();
	}
}

bool FContentList::setData(const QModelIndex& Index, const QVariant& Value, int Role)
{
	const FContentItem* const Item = Role == Qt::EditRole ? GetItem(Index) : nullptr;
	return Item != nullptr && Value.toString() != Item->Name && OnRename(QString(Item->Package), Value.toString());
}

Qt::ItemFlags FContentList::flags(const QModelIndex& Index) const
{
	const Qt::ItemFlags Flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
	return GetItem(Index) != nullptr ? Flags | Qt::ItemIsEditable : Flags;
}
