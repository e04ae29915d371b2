// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailPropertyRow.h"
#include "Rows/SDetailsRow.h"
#include "Values/PropertyNode.h"

/** What a customization wants of the row of a property that it added. */
class FDetailsPropertyRow final : public IDetailPropertyRow
{
public:
	explicit FDetailsPropertyRow(const TSharedRef<FPropertyNode>& InNode)
		: Node(InNode)
	{
	}

	//~ Begin IDetailPropertyRow
	virtual IDetailPropertyRow& DisplayName(const FText& InDisplayName) override;
	virtual IDetailPropertyRow& Visibility(TAttribute<EVisibility> InVisibility) override;
	virtual IDetailPropertyRow& IsEnabled(TAttribute<bool> InIsEnabled) override;
	virtual FDetailWidgetRow& CustomWidget(bool bShowChildren) override;
	//~ End IDetailPropertyRow

	const TSharedRef<FPropertyNode> Node;
	FText Name; // empty: the property's own
	TAttribute<EVisibility> VisibilityAttribute = EVisibility::Visible;
	TAttribute<bool> EnabledAttribute = true;
	TSharedPtr<FDetailWidgetRow> CustomContent; // null: the property's own
	bool bShowChildrenOfCustom = false;
};

/** Collects what a customization adds, and makes it into rows once the customization is done with it. */
class FDetailsChildren final : public IDetailChildrenBuilder
{
public:
	/** Owner is the property whose customization adds them. */
	explicit FDetailsChildren(const TSharedRef<FPropertyNode>& InOwner)
		: Owner(InOwner)
	{
	}

	//~ Begin IDetailChildrenBuilder
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) override;
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) override;
	//~ End IDetailChildrenBuilder

	TArray<TSharedRef<SDetailsRow>> MakeRows() const;

private:
	/** The row of a property, or a custom one with its search words. */
	struct FEntry
	{
		TSharedPtr<FDetailsPropertyRow> Property; // null for custom rows
		TSharedPtr<FDetailWidgetRow> Custom; // null for rows of properties
		FString SearchWords;
	};

	TSharedRef<FPropertyNode> Owner;
	TArray<FEntry> Entries;
};
