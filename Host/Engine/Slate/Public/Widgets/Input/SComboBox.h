// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/Input/SComboButton.h"

/** A combo button over a list of options that its owner keeps alive. Options compare with ==. */
template<typename OptionType>
class SComboBox : public SComboButton
{
public:
	typedef typename TSlateDelegates<OptionType>::FOnSelectionChanged FOnSelectionChanged;
	typedef typename TSlateDelegates<OptionType>::FOnGenerateWidget FOnGenerateWidget;
	typedef FSimpleDelegate FOnComboBoxOpening;

	SLATE_BEGIN_ARGS(SComboBox<OptionType>)
		: _OptionsSource(nullptr)
		, _InitiallySelectedItem()
		, _MaxListHeight(450.0f)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboBoxStyle)
		SLATE_STYLE_ARGUMENT(FTableRowStyle, ItemStyle)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
		SLATE_ARGUMENT(OptionType, InitiallySelectedItem)
		SLATE_EVENT(FOnComboBoxOpening, OnComboBoxOpening)
		SLATE_ARGUMENT(float, MaxListHeight)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		OptionsSource = InArgs._OptionsSource;
		SelectedItem = InArgs._InitiallySelectedItem;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		OnComboBoxOpening = InArgs._OnComboBoxOpening;
		SComboButton::Construct(SComboButton::FArguments().ButtonContent()[InArgs._Content.Widget]);
	}

	OptionType GetSelectedItem() { return SelectedItem; }

	/** Raises OnSelectionChanged when the item is another one. */
	void SetSelectedItem(OptionType InSelectedItem, ESelectInfo::Type InSelectInfo = ESelectInfo::OnNavigation)
	{
		if (SelectedItem == InSelectedItem)
		{
			return;
		}
		SelectedItem = InSelectedItem;
		OnSelectionChanged.ExecuteIfBound(SelectedItem, InSelectInfo);
	}

	void ClearSelection() { SetSelectedItem(OptionType(), ESelectInfo::Direct); }

	/** Has the options read again when they show next: nothing else does, whatever becomes of the array. The selection stays. */
	void RefreshOptions() { bRefreshPending = true; }

	virtual void SetIsOpen(bool bInIsOpen) override
	{
		if (bInIsOpen && !IsOpen())
		{
			OnComboBoxOpening.ExecuteIfBound();
		}
		SComboButton::SetIsOpen(bInIsOpen);
	}

protected:
	virtual int32 CountOptionsForHost() const override { return ReadOptions().Num(); }
	virtual TSharedRef<SWidget> MakeOptionForHost(int32 Index) override
	{
		return OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(ReadOptions()[Index]) : SNullWidget::NullWidget;
	}
	virtual void PickOptionForHost(int32 Index) override
	{
		const OptionType Picked = ReadOptions()[Index]; // a copy: the handler may change the list
		SetSelectedItem(Picked, ESelectInfo::OnMouseClick);
	}

private:
	/** The options that show. */
	const TArray<OptionType>& ReadOptions() const
	{
		if (bRefreshPending)
		{
			bRefreshPending = false;
			KnownOptions = OptionsSource ? *OptionsSource : TArray<OptionType>();
		}
		return KnownOptions;
	}

	const TArray<OptionType>* OptionsSource = nullptr;
	mutable TArray<OptionType> KnownOptions; // as they were read last
	mutable bool bRefreshPending = true;
	OptionType SelectedItem{};
	FOnSelectionChanged OnSelectionChanged;
	FOnGenerateWidget OnGenerateWidget;
	FOnComboBoxOpening OnComboBoxOpening;
};
