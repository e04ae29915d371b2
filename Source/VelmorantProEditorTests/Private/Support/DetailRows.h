// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class IDetailTreeNode;
class IPropertyRowGenerator;

/**
 * The rows that a details panel has for some objects, laid out by the generator that panels have, too. A panel itself would not do: it makes
 * its rows' widgets when it is drawn, which needs a window on a screen, and gives nobody its rows.
 */
class FVelmorantDetailRows
{
public:
	explicit FVelmorantDetailRows(const TArray<UObject*>& Objects);

	/** The row of a property, wherever it stands; null when there is none. */
	TSharedPtr<IDetailTreeNode> Find(FName Property) const;

	/** The texts in the name columns of the rows below a row, and below those, in order. */
	static TArray<FString> CollectNames(const TSharedRef<IDetailTreeNode>& Row);

	/** How many widgets of a class stand in the row and in those below. */
	static int32 CountWidgets(const TSharedRef<IDetailTreeNode>& Row, const TCHAR* Class);

private:
	TSharedRef<IPropertyRowGenerator> Generator;
};
