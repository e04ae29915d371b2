// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class IPropertyHandle;
class SWidget;

/** What stands in a row: name and value, or one widget over both. */
struct FNodeWidgets
{
	TSharedPtr<SWidget> NameWidget;
	TSharedPtr<SWidget> ValueWidget;
	TSharedPtr<SWidget> WholeRowWidget;
};

/** A row of a details panel, or the heading of a category. */
class IDetailTreeNode
{
public:
	virtual ~IDetailTreeNode() = default;

	virtual FNodeWidgets CreateNodeWidgets() const = 0;

	virtual void GetChildren(TArray<TSharedRef<IDetailTreeNode>>& OutChildren, const bool& bInIgnoreVisibility = false) = 0;

	/** Null for headings and for rows that are no property's. */
	virtual TSharedPtr<IPropertyHandle> CreatePropertyHandle() const = 0;

	/** The property's, or the category's; none for other rows. */
	virtual FName GetNodeName() const = 0;
};
