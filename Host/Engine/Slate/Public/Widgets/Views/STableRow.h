// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

/** What all rows are, whatever they show. Host: what is seen of a row and done to it is the business of the view that owns it. */
class SLATE_API STableRowBorder : public SBorder
{
protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

	TWeakPtr<STableViewBase> OwnerTable;
};

/** A row or tile with whatever is put into it. Belongs to the view that asked for it. */
template<typename ItemType>
class STableRow : public ITableRow, public STableRowBorder
{
public:
	SLATE_BEGIN_ARGS(STableRow<ItemType>)
		: _ShowSelection(true)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ARGUMENT(bool, ShowSelection)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView)
	{
		OwnerTable = InOwnerTableView;
		SBorder::Construct(SBorder::FArguments().Padding(InArgs._Padding)[InArgs._Content.Widget]);
	}

	virtual TSharedRef<SWidget> AsWidget() override { return this->AsShared(); }
};
