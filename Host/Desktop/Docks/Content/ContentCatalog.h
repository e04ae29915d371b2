// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

#include <memory>

/** What assets of one class have in common for those who look at them. */
struct FContentKind
{
	QString Name; // as the editor calls it
	QColor Color;
	FSlateBrush Thumbnail; // of the style sets; without a resource when they have none for the class
};

/** An asset as the content browser shows it. */
struct FContentItem
{
	FAssetData Data;
	QString Package; // "/Game/Dir/Asset"
	QString Folder; // "/Game/Dir"
	QString Name;
	std::shared_ptr<const FContentKind> Kind;
	bool bUnsaved = false;
};

/** All assets of the running editor, saved or not, read again when something about them may have changed. */
class FContentCatalog
{
public:
	/** @return whether what it holds is not what it held */
	bool Refresh(const TArray<FString>& Unsaved);

	/** Has the folders on disk searched again: somebody else may have changed them. */
	void SearchAgain();

	/** The editor goes down. */
	void LetGo();

	/** By name within each folder. */
	const std::vector<FContentItem>& GetItems() const { return Items; }

	bool Holds(const QString& Package) const;

	/** Those that hold something at any depth, and the roots; owners before what is in them. */
	const QStringList& GetFolders() const { return Folders; }

private:
	void Read(const TArray<FString>& Unsaved);
	std::shared_ptr<const FContentKind> FindKind(const FAssetData& Asset);
	void CollectFolders();

	std::vector<FContentItem> Items;
	QStringList Folders;
	QHash<QString, std::shared_ptr<const FContentKind>> Kinds; // by class path
	uint64 Seen = 0; // what stood for everything at the last reading
};
