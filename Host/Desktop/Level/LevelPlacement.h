// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "GameFramework/Actor.h"

struct FPlaceableItem;

/** What can be placed into the level, by keys that may be dragged from one dock to another. For use within FDesktopEditor::Do(). */
namespace LevelPlacement
{
	/** Data of a drag: the key, as UTF-8. */
	inline const char* const MimeType = "application/x-velmorant-placeable";

	QString MakeKey(FName Category, const FPlaceableItem& Item);

	/** Puts an actor there and selects it; one step of undo. Null with the reason why not. */
	AActor* Place(const QString& Key, const FVector& Location, QString& OutReason);
}
