// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** A row or tile of a view. */
class ITableRow
{
public:
	virtual ~ITableRow() = default;

	virtual TSharedRef<SWidget> AsWidget() = 0;
};
