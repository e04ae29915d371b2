// Copyright Velmorant. All Rights Reserved.

#include "Level/LevelPlacement.h"

#include "HostPlacement.h"
#include "QtText.h"
#include "ScopedTransaction.h"

namespace LevelPlacement
{
	TSharedPtr<FPlaceableItem> Find(const QString& Key)
	{
		for (const FName Category : HostPlacement::GetCategories())
		{
			for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems(Category))
			{
				if (MakeKey(Category, *Item) == Key)
				{
					return Item;
				}
			}
		}
		return nullptr;
	}

	QString MakeKey(FName Category, const FPlaceableItem& Item)
	{
		return QStringLiteral("%1/%2").arg(QtText::From(Category), QtText::From(Item.AssetData.GetObjectPathString()));
	}

	AActor* Place(const QString& Key, const FVector& Location, QString& OutReason)
	{
		const TSharedPtr<FPlaceableItem> Item = Find(Key);
		if (!Item.IsValid())
		{
			OutReason = QObject::tr("It is no longer offered.");
			return nullptr;
		}
		const FScopedTransaction Step(FText::FromString(QtText::ToEditor(QObject::tr("Place %1").arg(QtText::From(Item->DisplayName)))));
		FText Obstacle;
		AActor* const Actor = HostPlacement::Place(*Item, FTransform(Location), Obstacle);
		OutReason = QtText::From(Obstacle);
		return Actor;
	}
}
