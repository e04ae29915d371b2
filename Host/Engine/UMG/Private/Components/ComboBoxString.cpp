// Copyright Velmorant. All Rights Reserved.

#include "Components/ComboBoxString.h"

#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

void UComboBoxString::PostInitProperties()
{
	Super::PostInitProperties();
	for (const FString& Option : DefaultOptions)
	{
		AddOption(Option);
	}
}

TSharedRef<SWidget> UComboBoxString::RebuildWidget()
{
	TSharedPtr<SBox> Content;
	// clang-format off
	const TSharedRef<SWidget> Box = SNew(SComboBox<TSharedPtr<FString>>)
		.OptionsSource(&Options)
		.InitiallySelectedItem(CurrentOptionPtr)
		.OnGenerateWidget_UObject(this, &UComboBoxString::HandleGenerateWidget)
		.OnSelectionChanged_UObject(this, &UComboBoxString::HandleSelectionChanged)
		.OnComboBoxOpening_UObject(this, &UComboBoxString::HandleOpening)
		[
			SAssignNew(Content, SBox)
		];
	// clang-format on
	ComboBoxContent = Content;
	UpdateContent();
	return Box;
}

TSharedRef<SWidget> UComboBoxString::HandleGenerateWidget(TSharedPtr<FString> Item)
{
	const FString Shown = Item.IsValid() ? *Item : FString();
	if (OnGenerateWidgetEvent.IsBound())
	{
		if (UWidget* Generated = OnGenerateWidgetEvent.Execute(Shown))
		{
			GeneratedWidgets.Add(Generated);
			return Generated->TakeWidget();
		}
	}
	return SNew(STextBlock).Text(FText::FromString(Shown));
}

void UComboBoxString::HandleSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectionType)
{
	Select(Item, SelectionType);
}

void UComboBoxString::HandleOpening()
{
	RefreshOptions(); // they may have changed while it was open last
	OnOpening.Broadcast();
}

/** The one place where the selection changes: box, face and listeners stay in step. */
void UComboBoxString::Select(const TSharedPtr<FString>& Item, ESelectInfo::Type SelectionType)
{
	if (CurrentOptionPtr == Item)
	{
		return;
	}
	CurrentOptionPtr = Item;
	if (const TSharedPtr<SComboBox<TSharedPtr<FString>>> Box = GetBox())
	{
		Box->SetSelectedItem(Item, SelectionType); // comes back here and finds nothing to do
	}
	UpdateContent();
	OnSelectionChanged.Broadcast(Item.IsValid() ? *Item : FString(), SelectionType);
}

void UComboBoxString::UpdateContent()
{
	GeneratedWidgets.Empty();
	if (const TSharedPtr<SBox> Content = ComboBoxContent.Pin())
	{
		Content->SetContent(CurrentOptionPtr.IsValid() ? HandleGenerateWidget(CurrentOptionPtr) : SNullWidget::NullWidget);
	}
}

void UComboBoxString::AddOption(const FString& Option)
{
	Options.Add(MakeShared<FString>(Option));
	NoteOptionsChanged();
}

int32 UComboBoxString::FindOptionIndex(const FString& Option) const
{
	return Options.IndexOfByPredicate([&Option](const TSharedPtr<FString>& Other) { return *Other == Option; });
}

void UComboBoxString::ClearOptions()
{
	ClearSelection();
	Options.Empty();
	NoteOptionsChanged();
}

void UComboBoxString::ClearSelection()
{
	Select(nullptr, ESelectInfo::Direct);
}

void UComboBoxString::RefreshOptions()
{
	if (const TSharedPtr<SComboBox<TSharedPtr<FString>>> Box = GetBox())
	{
		Box->RefreshOptions();
	}
}

TSharedPtr<SComboBox<TSharedPtr<FString>>> UComboBoxString::GetBox() const
{
	return StaticCastSharedPtr<SComboBox<TSharedPtr<FString>>>(MyWidget.Pin());
}

void UComboBoxString::NoteOptionsChanged()
{
	const TSharedPtr<SComboBox<TSharedPtr<FString>>> Box = GetBox();
	if (Box.IsValid() && !Box->IsOpen())
	{
		Box->RefreshOptions();
	}
}

void UComboBoxString::SetSelectedOption(FString Option)
{
	SetSelectedIndex(FindOptionIndex(Option));
}

void UComboBoxString::SetSelectedIndex(const int32 Index)
{
	if (Options.IsValidIndex(Index) && !(CurrentOptionPtr.IsValid() && *CurrentOptionPtr == *Options[Index]))
	{
		Select(Options[Index], ESelectInfo::Direct);
	}
}

FString UComboBoxString::GetSelectedOption() const
{
	return CurrentOptionPtr.IsValid() ? *CurrentOptionPtr : FString();
}

int32 UComboBoxString::GetSelectedIndex() const
{
	return CurrentOptionPtr.IsValid() ? Options.Find(CurrentOptionPtr) : INDEX_NONE;
}
