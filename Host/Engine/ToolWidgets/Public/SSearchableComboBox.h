// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Views/SListView.h"

/**
 * A combo button over a list of texts that its owner keeps alive; the open menu has a search box above the options.
 *
 * The search keeps options whose text contains all its words; it starts anew each time the menu opens. Options are the same when their
 * pointers are: an equal text at another address is another option.
 */
class TOOLWIDGETS_API SSearchableComboBox : public SComboButton
{
public:
	typedef TSlateDelegates<TSharedPtr<FString>>::FOnGenerateWidget FOnGenerateWidget;
	typedef TSlateDelegates<TSharedPtr<FString>>::FOnSelectionChanged FOnSelectionChanged;
	typedef FSimpleDelegate FOnComboBoxOpening;

	SLATE_BEGIN_ARGS(SSearchableComboBox)
		: _OptionsSource(nullptr)
		, _InitiallySelectedItem(nullptr)
		, _bAlwaysSelectItem(false)
		{
		}
		/** The button face: something that shows the current option. */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** Kept by the caller; null for no options. */
		SLATE_ARGUMENT(const TArray<TSharedPtr<FString>>*, OptionsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		/** Required. */
		SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
		SLATE_ARGUMENT(TSharedPtr<FString>, InitiallySelectedItem)
		SLATE_EVENT(FOnComboBoxOpening, OnComboBoxOpening)
		/** Whether picking the option that is selected already is told, too. */
		SLATE_ARGUMENT(bool, bAlwaysSelectItem)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Tells the listener with no option, unless none is selected. */
	void ClearSelection();

	/** Tells the listener when the option is another one. It need not be among the options. */
	void SetSelectedItem(TSharedPtr<FString> InSelectedItem, ESelectInfo::Type InSelectInfo = ESelectInfo::OnNavigation);

	TSharedPtr<FString> GetSelectedItem();

	/** Reads the options again, through the current search: nothing else does, whatever becomes of the array. The selection stays. */
	void RefreshOptions();

	virtual void SetIsOpen(bool bInIsOpen) override;

protected:
	//~ Host: the options of a script are all of them; a person's search narrows only the open list.
	virtual int32 CountOptionsForHost() const override;
	virtual TSharedRef<SWidget> MakeOptionForHost(int32 Index) override;
	virtual void PickOptionForHost(int32 Index) override;

private:
	TSharedRef<SWidget> MakeMenu();
	TSharedRef<ITableRow> MakeRow(TSharedPtr<FString> Option, const TSharedRef<STableViewBase>& OwnerTable);
	void HandleSearchChanged(const FText& Text);
	void FilterOptions();
	void HandleOptionClicked(TSharedPtr<FString> Option);
	void Pick(TSharedPtr<FString> Option);

	const TArray<TSharedPtr<FString>>* OptionsSource = nullptr;
	TArray<TSharedPtr<FString>> KnownOptions; // as they were read last
	TArray<TSharedPtr<FString>> FilteredOptions; // those of them that the search leaves
	FText SearchText;
	TSharedPtr<FString> SelectedItem;
	TSharedPtr<SListView<TSharedPtr<FString>>> ListView; // while the menu is open
	FOnSelectionChanged OnSelectionChanged;
	FOnGenerateWidget OnGenerateWidget;
	FOnComboBoxOpening OnComboBoxOpening;
	bool bAlwaysSelectItem = false;
};
