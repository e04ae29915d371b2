// Copyright Velmorant. All Rights Reserved.

#include "DetailsCustomization/UI/VelmorantFontIconHandlerCustomization.h"

#include "DetailWidgetRow.h"
#include "DetailsCustomization/UI/VelmorantPropertyOptions.h"
#include "Editor.h"
#include "FontIconHandler.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailPropertyRow.h"
#include "PropertyHandle.h"
#include "SSearchableComboBox.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STileView.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantFontIconHandlerCustomization
{
	// Slate units.
	constexpr float IconListHeight = 150.0f;
	constexpr float TileSize = 35.0f;
	constexpr float IconListMinWidth = 250.0f;
}

void FVelmorantFontIconHandlerCustomization::CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils&)
{
	FontIconNameHandle = PropertyHandle->GetChildHandle("FontIconName");
	IconStyleHandle = PropertyHandle->GetChildHandle("IconStyle");
	IconNameHandle = PropertyHandle->GetChildHandle("IconName");
	IconColorHandle = PropertyHandle->GetChildHandle("IconColor");

	// clang-format off
	HeaderRow
	.NameContent()
	[
		PropertyHandle->CreatePropertyNameWidget()
	]
	.ValueContent()
	[
		// Bound rather than set: the icons are taken in only below, and others may be chosen later.
		SNew(STextBlock)
		.Text(this, &FVelmorantFontIconHandlerCustomization::GetCurrentUnicodeText)
		.Font(this, &FVelmorantFontIconHandlerCustomization::GetFontInfo)
	];
	// clang-format on

	FillSource();
}

void FVelmorantFontIconHandlerCustomization::CustomizeChildren(TSharedRef<IPropertyHandle>, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils&)
{
	FillOptions();
	AddDropDownRow(ChildBuilder, FontIconNameHandle, FontDropDown);
	AddDropDownRow(ChildBuilder, IconStyleHandle, StyleDropDown);
	AddDropDownRow(ChildBuilder, IconNameHandle, IconDropDown);

	// clang-format off
	ChildBuilder.AddCustomRow(LOCTEXT("IconListFilter", "Filter"))
	.NameContent()
	[
		VelmorantPropertyOptions::MakeText(LOCTEXT("IconList", "Icon List"))
	]
	.ValueContent()
	.MinDesiredWidth(VelmorantFontIconHandlerCustomization::IconListMinWidth)
	[
		MakeIconList()
	];
	// clang-format on

	if (IconColorHandle.IsValid())
	{
		ChildBuilder.AddProperty(IconColorHandle.ToSharedRef());
	}

	for (const TSharedPtr<IPropertyHandle>& Handle : {FontIconNameHandle, IconStyleHandle})
	{
		if (Handle.IsValid())
		{
			Handle->SetOnPropertyValueChanged(FSimpleDelegate::CreateSP(this, &FVelmorantFontIconHandlerCustomization::OnFontOrStyleChanged));
		}
	}
	if (IconNameHandle.IsValid())
	{
		IconNameHandle->SetOnPropertyValueChanged(FSimpleDelegate::CreateSP(this, &FVelmorantFontIconHandlerCustomization::OnIconNameChanged));
	}
	FEditorDelegates::PostUndoRedo.AddSP(this, &FVelmorantFontIconHandlerCustomization::OnUndoRedo);
	FillSource();
	SelectCurrentIconName();
}

void FVelmorantFontIconHandlerCustomization::AddDropDownRow(IDetailChildrenBuilder& ChildBuilder, const TSharedPtr<IPropertyHandle>& Handle, FDropDown& DropDown)
{
	if (!Handle.IsValid())
	{
		return;
	}

	// clang-format off
	ChildBuilder.AddProperty(Handle.ToSharedRef())
	.CustomWidget()
	.NameContent()
	[
		Handle->CreatePropertyNameWidget()
	]
	.ValueContent()
	[
		SAssignNew(DropDown.ComboBox, SSearchableComboBox)
		.OptionsSource(&DropDown.Options)
		.OnComboBoxOpening(this, &FVelmorantFontIconHandlerCustomization::OnDropDownOpening, Handle, &DropDown)
		.OnGenerateWidget_Lambda([](TSharedPtr<FString> Option) { return VelmorantPropertyOptions::MakeText(FText::FromString(*Option)); })
		.OnSelectionChanged(this, &FVelmorantFontIconHandlerCustomization::OnOptionChosen, Handle)
		[
			VelmorantPropertyOptions::MakeText(TAttribute<FText>::CreateLambda([Handle]() { return VelmorantPropertyOptions::GetValueText(Handle); }))
		]
	];
	// clang-format on
}

void FVelmorantFontIconHandlerCustomization::OnDropDownOpening(TSharedPtr<IPropertyHandle> Handle, FDropDown* DropDown)
{
	// Fonts and tables may have changed since, and the property may have been written elsewhere: the list tells only of a choice that
	// differs from the one before.
	RefreshDropDowns();
	DropDown->ComboBox->SetSelectedItem(VelmorantPropertyOptions::Find(DropDown->Options, GetValue(Handle)), ESelectInfo::Direct);
}

void FVelmorantFontIconHandlerCustomization::OnOptionChosen(TSharedPtr<FString> Option, ESelectInfo::Type SelectInfo, TSharedPtr<IPropertyHandle> Handle) const
{
	if (Option.IsValid() && SelectInfo != ESelectInfo::Direct)
	{
		SetValue(Handle, FName(*Option));
	}
}

TSharedRef<SWidget> FVelmorantFontIconHandlerCustomization::MakeIconList()
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SAssignNew(SearchBox, SSearchBox)
			.OnTextChanged(this, &FVelmorantFontIconHandlerCustomization::OnSearchTextChanged)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SBox)
			.HeightOverride(VelmorantFontIconHandlerCustomization::IconListHeight)
			[
				SAssignNew(TileView, STileView<FIconItem>)
				.ListItemsSource(&FilteredItems)
				.ItemWidth(VelmorantFontIconHandlerCustomization::TileSize)
				.ItemHeight(VelmorantFontIconHandlerCustomization::TileSize)
				.SelectionMode(ESelectionMode::Single)
				.OnGenerateTile(this, &FVelmorantFontIconHandlerCustomization::MakeTileViewWidget)
				.OnSelectionChanged(this, &FVelmorantFontIconHandlerCustomization::OnIconSelected)
			]
		];
	// clang-format on
}

TSharedRef<ITableRow> FVelmorantFontIconHandlerCustomization::MakeTileViewWidget(FIconItem Entry, const TSharedRef<STableViewBase>& OwnerTable)
{
	// clang-format off
	return SNew(STableRow<FIconItem>, OwnerTable)
		.ToolTipText(FText::FromName(Entry->IconName))
		[
			SNew(SBox)
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock)
				.Text(GetUnicodeText(Entry->IconName))
				.Font(this, &FVelmorantFontIconHandlerCustomization::GetFontInfo)
				.Justification(ETextJustify::Center)
			]
		];
	// clang-format on
}

void FVelmorantFontIconHandlerCustomization::OnSearchTextChanged(const FText&)
{
	UpdateFilterListView();
}

void FVelmorantFontIconHandlerCustomization::OnIconSelected(FIconItem Entry, ESelectInfo::Type SelectInfo) const
{
	// A selection from code only shows what the property holds, and none is selected when the list is filled anew: neither is a
	// choice, and writing then would change the property by merely opening the panel.
	if (Entry.IsValid() && SelectInfo != ESelectInfo::Direct)
	{
		SetValue(IconNameHandle, Entry->IconName);
	}
}

#undef LOCTEXT_NAMESPACE
