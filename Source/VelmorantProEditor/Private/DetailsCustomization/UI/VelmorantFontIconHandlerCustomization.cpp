// Copyright Velmorant. All Rights Reserved.

#include "DetailsCustomization/UI/VelmorantFontIconHandlerCustomization.h"

#include "DetailsCustomization/UI/VelmorantPropertyOptions.h"
#include "FontIconData.h"
#include "FontIconHandler.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "SSearchableComboBox.h"
#include "VelmorantUISubsystem.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Views/STileView.h"

namespace VelmorantFontIconHandlerCustomization
{
	constexpr int32 GlyphSize = 16; // points
	const TCHAR* const TableContext = TEXT("FVelmorantFontIconHandlerCustomization");
}

FVelmorantFontIconHandlerCustomization::FIconItemViewEntry::FIconItemViewEntry(FName InIconName, const FFontIconRow& Row)
	: IconName(InIconName)
	, IconStyles(Row.IconStyles)
	, SearchTags(Row.SearchTags)
{
}

void FVelmorantFontIconHandlerCustomization::Register(FPropertyEditorModule& PropertyEditor)
{
	PropertyEditor.RegisterCustomPropertyTypeLayout(FFontIconHandler::StaticStruct()->GetFName(), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FVelmorantFontIconHandlerCustomization::MakeInstance));
}

TSharedRef<IPropertyTypeCustomization> FVelmorantFontIconHandlerCustomization::MakeInstance()
{
	return MakeShareable(new FVelmorantFontIconHandlerCustomization);
}

FName FVelmorantFontIconHandlerCustomization::GetValue(const TSharedPtr<IPropertyHandle>& Prop) const
{
	FName OutValue = NAME_None;
	if (Prop.IsValid())
	{
		ensure(Prop->GetValue(OutValue) != FPropertyAccess::Fail);
	}
	return OutValue;
}

void FVelmorantFontIconHandlerCustomization::SetValue(const TSharedPtr<IPropertyHandle>& Prop, FName Value) const
{
	if (Prop.IsValid())
	{
		ensure(Prop->SetValue(Value) != FPropertyAccess::Fail);
	}
}

TSharedPtr<FFontIconData> FVelmorantFontIconHandlerCustomization::GetFontIconData() const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	return UISubsystem ? MakeShared<FFontIconData>(UISubsystem->GetFontIconDataByID(GetValue(FontIconNameHandle))) : MakeShared<FFontIconData>();
}

FVelmorantFontIconHandlerCustomization::FOptions FVelmorantFontIconHandlerCustomization::GetFontIconOptions() const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	return UISubsystem ? VelmorantPropertyOptions::Make(UISubsystem->GetAllFontIconOptions()) : FOptions();
}

FVelmorantFontIconHandlerCustomization::FOptions FVelmorantFontIconHandlerCustomization::GetIconStylesOptions() const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	return UISubsystem ? VelmorantPropertyOptions::Make(UISubsystem->GetAllFontIconsStylesNames(GetValue(FontIconNameHandle))) : FOptions();
}

FVelmorantFontIconHandlerCustomization::FOptions FVelmorantFontIconHandlerCustomization::GetIconsNamesOptions() const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	return UISubsystem ? VelmorantPropertyOptions::Make(UISubsystem->GetAllIconsNames(GetValue(FontIconNameHandle))) : FOptions();
}

FSlateFontInfo FVelmorantFontIconHandlerCustomization::GetFontInfo() const
{
	return FFontIconHandler(GetValue(FontIconNameHandle), GetValue(IconStyleHandle), GetValue(IconNameHandle)).GenerateFontSlate(VelmorantFontIconHandlerCustomization::GlyphSize);
}

FText FVelmorantFontIconHandlerCustomization::GetUnicodeText(FName IconName) const
{
	const UDataTable* Table = CurrentFontIconData.IsValid() ? CurrentFontIconData->IconDataTable.Get() : nullptr;
	const FFontIconRow* Row = Table && !IconName.IsNone() ? Table->FindRow<FFontIconRow>(IconName, VelmorantFontIconHandlerCustomization::TableContext, false) : nullptr;
	return Row ? FText::FromString(Row->Character) : FText::FromName(NAME_None);
}

FText FVelmorantFontIconHandlerCustomization::GetCurrentUnicodeText() const
{
	return GetUnicodeText(GetValue(IconNameHandle));
}

void FVelmorantFontIconHandlerCustomization::FillSource()
{
	const TSharedPtr<FFontIconData> FontIconData = GetFontIconData();
	if (FontIconData->IconDataTable)
	{
		CurrentFontIconData = FontIconData;
		CurrentIconTable.Reset(FontIconData->IconDataTable);
	}

	SourceItems.Empty();
	if (CurrentFontIconData.IsValid())
	{
		const UDataTable& Table = *CurrentFontIconData->IconDataTable;
		for (const FName& RowName : Table.GetRowNames())
		{
			if (const FFontIconRow* Row = Table.FindRow<FFontIconRow>(RowName, VelmorantFontIconHandlerCustomization::TableContext))
			{
				SourceItems.Add(MakeShared<FIconItemViewEntry>(RowName, *Row));
			}
		}
	}
	Filter.SetIcons(SourceItems.Num(), [this](int32 Icon) {
		const FIconItemViewEntry& Entry = *SourceItems[Icon];
		return FFontIconFilter::FIcon{Entry.IconName, Entry.IconStyles, Entry.SearchTags};
	});
	FilteredItems = FilterListItems(FString()); // a new font starts unfiltered
}

TArray<FVelmorantFontIconHandlerCustomization::FIconItem> FVelmorantFontIconHandlerCustomization::FilterListItems(const FString& FilterText) const
{
	TArray<FIconItem> Items;
	for (const int32 Icon : Filter.Find(FilterText, GetValue(IconStyleHandle)))
	{
		Items.Add(SourceItems[Icon]);
	}
	return Items;
}

void FVelmorantFontIconHandlerCustomization::UpdateFilterListView()
{
	if (!SearchBox.IsValid() || !TileView.IsValid())
	{
		return;
	}
	FilteredItems = FilterListItems(SearchBox->GetText().ToString());
	TileView->RequestListRefresh();
}

void FVelmorantFontIconHandlerCustomization::SelectCurrentIconName()
{
	const FName IconName = GetValue(IconNameHandle);
	for (const FIconItem& Item : TileView->GetItems())
	{
		if (Item->IconName == IconName)
		{
			TileView->SetSelection(Item);
			TileView->RequestScrollIntoView(Item);
			return;
		}
	}
}

void FVelmorantFontIconHandlerCustomization::OnIconNameChanged()
{
	const TArray<FIconItem> Selected = TileView->GetSelectedItems();
	if (Selected.IsEmpty() || Selected[0]->IconName != GetValue(IconNameHandle))
	{
		TileView->ClearSelection();
		SelectCurrentIconName();
	}
}

void FVelmorantFontIconHandlerCustomization::FillOptions()
{
	FontDropDown.Options = GetFontIconOptions();
	StyleDropDown.Options = GetIconStylesOptions();
	IconDropDown.Options = GetIconsNamesOptions();
}

void FVelmorantFontIconHandlerCustomization::RefreshDropDowns()
{
	FillOptions();
	for (const FDropDown* DropDown : {&FontDropDown, &StyleDropDown, &IconDropDown})
	{
		if (DropDown->ComboBox.IsValid())
		{
			DropDown->ComboBox->RefreshOptions();
		}
	}
}

void FVelmorantFontIconHandlerCustomization::OnFontOrStyleChanged()
{
	RefreshDropDowns();
	FillSource();
	UpdateFilterListView(); // the search text stays, and applies to the new font or style
}

void FVelmorantFontIconHandlerCustomization::OnUndoRedo()
{
	// The object itself may be what was taken away: then there is nothing to show any more.
	if (IconNameHandle.IsValid() && IconNameHandle->IsValidHandle())
	{
		OnFontOrStyleChanged();
		TileView->ClearSelection();
		SelectCurrentIconName();
	}
}
