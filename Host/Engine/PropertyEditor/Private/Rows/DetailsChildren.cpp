// Copyright Velmorant. All Rights Reserved.

#include "Rows/DetailsChildren.h"

#include "Rows/DetailsRowBuilder.h"
#include "Values/PropertyHandleImpl.h"
#include "Values/PropertyWidgets.h"

IDetailPropertyRow& FDetailsPropertyRow::DisplayName(const FText& InDisplayName)
{
	Name = InDisplayName;
	return *this;
}

IDetailPropertyRow& FDetailsPropertyRow::Visibility(TAttribute<EVisibility> InVisibility)
{
	VisibilityAttribute = InVisibility;
	return *this;
}

IDetailPropertyRow& FDetailsPropertyRow::IsEnabled(TAttribute<bool> InIsEnabled)
{
	EnabledAttribute = InIsEnabled;
	return *this;
}

FDetailWidgetRow& FDetailsPropertyRow::CustomWidget(bool bShowChildren)
{
	bShowChildrenOfCustom = bShowChildren;
	CustomContent = MakeShared<FDetailWidgetRow>();
	return *CustomContent;
}

IDetailPropertyRow& FDetailsChildren::AddProperty(TSharedRef<IPropertyHandle> PropertyHandle)
{
	FEntry& Entry = Entries.AddDefaulted_GetRef();
	Entry.Property = MakeShared<FDetailsPropertyRow>(FPropertyHandle::GetNode(*PropertyHandle));
	return *Entry.Property;
}

FDetailWidgetRow& FDetailsChildren::AddCustomRow(const FText& SearchString)
{
	FEntry& Entry = Entries.AddDefaulted_GetRef();
	Entry.Custom = MakeShared<FDetailWidgetRow>();
	Entry.SearchWords = SearchString.ToString();
	return *Entry.Custom;
}

TArray<TSharedRef<SDetailsRow>> FDetailsChildren::MakeRows() const
{
	TArray<TSharedRef<SDetailsRow>> Rows;
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Custom.IsValid())
		{
			Rows.Add(DetailsRowBuilder::MakeCustomRow(*Entry.Custom, Entry.SearchWords));
			continue;
		}
		// A customization that adds its own property means the plain one; its own rows would add themselves again.
		const bool bOwn = Entry.Property->Node == Owner;
		Rows.Append(DetailsRowBuilder::MakeRows(*Entry.Property, bOwn ? ECustomizeType::No : ECustomizeType::Yes));
	}
	return Rows;
}
