// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "CoreMinimal.h"

#include "ComboBoxString.generated.h"

class SBox;
template<typename OptionType>
class SComboBox;

/** A list of strings to choose one from. */
UCLASS()
class UMG_API UComboBoxString : public UWidget
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnSelectionChangedEvent, FString, SelectedItem, ESelectInfo::Type, SelectionType);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnOpeningEvent);
	DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(UWidget*, FGenerateWidgetForString, FString, Item);

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void AddOption(const FString& Option);

	/** The first option that equals Option, ignoring case; -1 when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 FindOptionIndex(const FString& Option) const;

	/** Also clears the selection, which tells the listeners with an empty string if something was selected. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void ClearOptions();

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void ClearSelection();

	/** A box that is open shows options that came or went only after this; a closed one shows them when it opens. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void RefreshOptions();

	/** An option that is not there changes nothing. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void SetSelectedOption(FString Option);

	/** Raises OnSelectionChanged with Direct, at once, when the option differs from the current one. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void SetSelectedIndex(const int32 Index);

	/** Empty while nothing is selected. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	FString GetSelectedOption() const;

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 GetSelectedIndex() const;

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 GetOptionCount() const { return Options.Num(); }

	/** Makes the widget of an option and of the selected one; without it they are plain texts. */
	UPROPERTY(EditAnywhere, Category = "Events")
	FGenerateWidgetForString OnGenerateWidgetEvent;

	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnSelectionChangedEvent OnSelectionChanged;

	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnOpeningEvent OnOpening;

	virtual void PostInitProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedRef<SWidget> HandleGenerateWidget(TSharedPtr<FString> Item);
	void HandleSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectionType);
	void HandleOpening();

private:
	void Select(const TSharedPtr<FString>& Item, ESelectInfo::Type SelectionType);
	void UpdateContent();
	TSharedPtr<SComboBox<TSharedPtr<FString>>> GetBox() const;
	void NoteOptionsChanged();

	UPROPERTY(EditAnywhere, Category = "Content")
	TArray<FString> DefaultOptions;

	/** Keeps the widgets that were generated for what shows just now. */
	UPROPERTY(Transient)
	TArray<TObjectPtr<UWidget>> GeneratedWidgets;

	TArray<TSharedPtr<FString>> Options;
	TSharedPtr<FString> CurrentOptionPtr; // one of Options, or null
	TWeakPtr<SBox> ComboBoxContent;
};
