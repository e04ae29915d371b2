// Copyright Velmorant. All Rights Reserved.

#include "SSearchableComboBox.h"

#include "HostSearchWords.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Views/STableRow.h"

namespace SearchableComboBox
{
	static const float MaxListHeight = 450.0f; // Slate units
}

void SSearchableComboBox::Construct(const FArguments& InArgs)
{
	OptionsSource = InArgs._OptionsSource;
	SelectedItem = InArgs._InitiallySelectedItem;
	OnSelectionChanged = InArgs._OnSelectionChanged;
	OnGenerateWidget = InArgs._OnGenerateWidget;
	OnComboBoxOpening = InArgs._OnComboBoxOpening;
	bAlwaysSelectItem = InArgs._bAlwaysSelectItem;
	// clang-format off
	SComboButton::Construct(SComboButton::FArguments()
		.OnGetMenuContent(FOnGetContent::CreateSP(this, &SSearchableComboBox::MakeMenu))
		.ButtonContent()
		[
			InArgs._Content.Widget
		]);
	// clang-format on
	RefreshOptions();
}

void SSearchableComboBox::ClearSelection()
{
	SetSelectedItem(nullptr, ESelectInfo::Direct);
}

void SSearchableComboBox::SetSelectedItem(TSharedPtr<FString> InSelectedItem, ESelectInfo::Type InSelectInfo)
{
	if (SelectedItem != InSelectedItem)
	{
		SelectedItem = InSelectedItem;
		OnSelectionChanged.ExecuteIfBound(SelectedItem, InSelectInfo);
	}
}

TSharedPtr<FString> SSearchableComboBox::GetSelectedItem()
{
	return SelectedItem;
}

void SSearchableComboBox::RefreshOptions()
{
	KnownOptions = OptionsSource != nullptr ? *OptionsSource : TArray<TSharedPtr<FString>>();
	FilterOptions();
}

void SSearchableComboBox::FilterOptions()
{
	const FHostSearchWords Words(SearchText.ToString());
	FilteredOptions = KnownOptions.FilterByPredicate([&Words](const TSharedPtr<FString>& Option) { return Option.IsValid() && Words.AreIn(*Option); });
	if (ListView.IsValid())
	{
		ListView->RequestListRefresh();
	}
}

void SSearchableComboBox::SetIsOpen(bool bInIsOpen)
{
	if (bInIsOpen && !IsOpen())
	{
		OnComboBoxOpening.ExecuteIfBound();
	}
	SComboButton::SetIsOpen(bInIsOpen);
	if (!bInIsOpen)
	{
		ListView.Reset();
	}
}

TSharedRef<SWidget> SSearchableComboBox::MakeMenu()
{
	SearchText = FText::GetEmpty();
	FilterOptions();
	// clang-format off
	const TSharedRef<SWidget> Menu =
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SSearchBox)
			.OnTextChanged(this, &SSearchableComboBox::HandleSearchChanged)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.MaxHeight(SearchableComboBox::MaxListHeight)
		[
			SAssignNew(ListView, SListView<TSharedPtr<FString>>)
			.ListItemsSource(&FilteredOptions)
			.SelectionMode(ESelectionMode::Single)
			.OnGenerateRow(this, &SSearchableComboBox::MakeRow)
			.OnMouseButtonClick(this, &SSearchableComboBox::HandleOptionClicked)
		];
	// clang-format on
	if (SelectedItem.IsValid() && FilteredOptions.Contains(SelectedItem))
	{
		ListView->SetSelection(SelectedItem);
		ListView->RequestScrollIntoView(SelectedItem);
	}
	return Menu;
}

TSharedRef<ITableRow> SSearchableComboBox::MakeRow(TSharedPtr<FString> Option, const TSharedRef<STableViewBase>& OwnerTable)
{
	// clang-format off
	return
		SNew(STableRow<TSharedPtr<FString>>, OwnerTable)
		[
			OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(Option) : SNullWidget::NullWidget
		];
	// clang-format on
}

void SSearchableComboBox::HandleSearchChanged(const FText& Text)
{
	SearchText = Text;
	FilterOptions();
}

void SSearchableComboBox::HandleOptionClicked(TSharedPtr<FString> Option)
{
	SetIsOpen(false);
	Pick(Option);
}

void SSearchableComboBox::Pick(TSharedPtr<FString> Option)
{
	if (SelectedItem != Option)
	{
		SetSelectedItem(Option, ESelectInfo::OnMouseClick);
	}
	else if (bAlwaysSelectItem)
	{
		OnSelectionChanged.ExecuteIfBound(Option, ESelectInfo::OnMouseClick);
	}
}

int32 SSearchableComboBox::CountOptionsForHost() const
{
	return KnownOptions.Num();
}

TSharedRef<SWidget> SSearchableComboBox::MakeOptionForHost(int32 Index)
{
	return OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(KnownOptions[Index]) : SNullWidget::NullWidget;
}

void SSearchableComboBox::PickOptionForHost(int32 Index)
{
	const TSharedPtr<FString> Option = KnownOptions[Index]; // held: the handler may change the list
	Pick(Option);
}
