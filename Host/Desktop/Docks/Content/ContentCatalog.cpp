// Copyright Velmorant. All Rights Reserved.

#include "Docks/Content/ContentCatalog.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "HostAssetTools.h"
#include "HostPackages.h"
#include "HostStyles.h"
#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

#include <algorithm>

namespace ContentCatalog
{
	uint64 Mix(uint64 Seed, uint64 Value)
	{
		return (Seed ^ Value) * 0x9e3779b97f4a7c15ull + (Seed >> 29);
	}

	/**
	 * Another number when an asset came, went, was changed, saved or renamed. It is asked once a frame: what has a file changes with the
	 * files, and what has none is unsaved.
	 */
	uint64 Fingerprint(const TArray<FString>& Unsaved)
	{
		uint64 Result = HostPackages::GetStorageVersion();
		for (const FString& Name : Unsaved)
		{
			const UPackage* const Package = FindPackage(nullptr, *Name);
			const UObject* const Asset = Package != nullptr ? HostPackages::FindMainAsset(Package) : nullptr;
			Result = Mix(Mix(Result, GetTypeHash(Name)), Asset != nullptr ? Asset->GetUniqueID() + 1ull : 0ull);
		}
		return Result;
	}

	/** That of the nearest class that has one. */
	FSlateBrush FindThumbnail(const UClass* Class)
	{
		for (; Class != nullptr; Class = Class->GetSuperClass())
		{
			if (const FSlateBrush* const Brush = HostStyles::FindBrush(FName(*(TEXT("ClassThumbnail.") + Class->GetName()))))
			{
				return *Brush;
			}
			// The engine's own classes are drawn by the window: no plugin has pictures of them.
			const QString Own = QStringLiteral("Class.") + QtText::From(Class->GetName());
			if (!Icons::FindFile(Own).isEmpty())
			{
				FSlateBrush Brush;
				Brush.SetResourceName(FName(*QtText::ToEditor(Own)));
				return Brush;
			}
		}
		return FSlateBrush();
	}
}

bool FContentCatalog::Refresh(const TArray<FString>& Unsaved)
{
	const uint64 Now = ContentCatalog::Fingerprint(Unsaved);
	if (Now == Seen)
	{
		return false;
	}
	Read(Unsaved);
	Seen = ContentCatalog::Fingerprint(Unsaved); // the first query reads the disk
	return true;
}

void FContentCatalog::SearchAgain()
{
	FAssetRegistryModule::GetRegistry().SearchAllAssets(true);
	Seen = 0;
}

void FContentCatalog::LetGo()
{
	Items.clear();
	Folders.clear();
	Kinds.clear();
	Seen = 0;
}

void FContentCatalog::Read(const TArray<FString>& Unsaved)
{
	TSet<FName> UnsavedNames;
	for (const FString& Name : Unsaved)
	{
		UnsavedNames.Add(FName(*Name));
	}
	TArray<FAssetData> Assets;
	FAssetRegistryModule::GetRegistry().GetAllAssets(Assets);
	Items.clear();
	Items.reserve(static_cast<std::size_t>(Assets.Num()));
	for (const FAssetData& Asset : Assets)
	{
		if (HostPackages::IsValidPackageName(Asset.PackageName.ToString())) // an untitled level has no place yet
		{
			Items.push_back({Asset, QtText::From(Asset.PackageName), QtText::From(Asset.PackagePath), QtText::From(Asset.AssetName), FindKind(Asset), UnsavedNames.Contains(Asset.PackageName)});
		}
	}
	std::stable_sort(Items.begin(), Items.end(), [](const FContentItem& Left, const FContentItem& Right) { return Left.Name.compare(Right.Name, Qt::CaseInsensitive) < 0; });
	CollectFolders();
}

std::shared_ptr<const FContentKind> FContentCatalog::FindKind(const FAssetData& Asset)
{
	std::shared_ptr<const FContentKind>& Kind = Kinds[QtText::From(Asset.AssetClassPath.ToString())];
	if (Kind)
	{
		return Kind;
	}
	const std::shared_ptr<FContentKind> Fresh = std::make_shared<FContentKind>();
	if (const UClass* const Class = Asset.GetClass(EResolveClass::Yes))
	{
		const HostAssetTools::FAssetKind Shown = HostAssetTools::FindKind(Class);
		*Fresh = {QtText::From(Shown.DisplayName), Theme::ToQt(Shown.Color), ContentCatalog::FindThumbnail(Class)};
	}
	else
	{
		*Fresh = {QtText::From(Asset.AssetClassPath.GetAssetName()), Theme::GetColors().Subtle, FSlateBrush()};
	}
	Kind = Fresh;
	return Kind;
}

void FContentCatalog::CollectFolders()
{
	QSet<QString> All;
	for (const FString& Root : HostPackages::GetMountedRoots())
	{
		All.insert(QtText::From(Root.LeftChop(1)));
	}
	for (const FContentItem& Item : Items)
	{
		for (QString Folder = Item.Folder; Folder.size() > 1 && !All.contains(Folder); Folder = Folder.left(Folder.lastIndexOf(QLatin1Char('/'))))
		{
			All.insert(Folder);
		}
	}
	Folders = QStringList(All.begin(), All.end());
	Folders.sort(Qt::CaseInsensitive);
}

bool FContentCatalog::Holds(const QString& Package) const
{
	return std::any_of(Items.begin(), Items.end(), [&Package](const FContentItem& Item) { return Item.Package == Package; });
}
