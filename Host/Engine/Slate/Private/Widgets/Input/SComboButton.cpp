// Copyright Velmorant. All Rights Reserved.

#include "Widgets/Input/SComboButton.h"

#include "HostMenus.h"
#include "HostParts.h"
#include "HostWidget.h"

namespace ComboButton
{
	/** The face is one line of text: its swatches are told beside it. */
	void NoteColors(SWidget& Face, TArray<FString>& OutNotes)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(Face);
		if (Description.Role == TEXT("swatch"))
		{
			OutNotes.Add(TEXT("swatch ") + Description.Value.Get(FString()));
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Face))
		{
			NoteColors(*Child, OutNotes);
		}
	}
}

void SComboButton::Construct(const FArguments& InArgs)
{
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	StaticMenuContent = InArgs._MenuContent.Widget;
	bHasDownArrow = InArgs._HasDownArrow;
	ChildSlot[InArgs._ButtonContent.Widget];
}

void SComboButton::SetIsOpen(bool bInIsOpen)
{
	if (bIsOpen == bInIsOpen)
	{
		return;
	}
	bIsOpen = bInIsOpen;
	OpenMenu.Empty();
	if (bIsOpen)
	{
		HostParts::Add(OnGetMenuContent.IsBound() ? OnGetMenuContent.Execute() : StaticMenuContent, OpenMenu);
		HostMenus::NoteOpened(StaticCastSharedRef<SComboButton>(AsShared()));
		OnComboBoxOpened.ExecuteIfBound();
	}
}

TSharedRef<SWidget> SComboButton::MakeOptionForHost(int32)
{
	return SNullWidget::NullWidget;
}

void SComboButton::PickOptionForHost(int32)
{
}

void SComboButton::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	const FString Face = FHostWidgetAccess::TextOf(*ChildSlot.GetWidget());
	const int32 NumOptions = CountOptionsForHost();
	if (NumOptions < 0)
	{
		OutDescription.Role = TEXT("menu button");
		OutDescription.Label = Face;
		return;
	}
	OutDescription.Role = TEXT("combo");
	OutDescription.Value = Face;
	OutDescription.Notes.Add(FString::Printf(TEXT("%d %s"), NumOptions, NumOptions == 1 ? TEXT("option") : TEXT("options")));
	ComboButton::NoteColors(*ChildSlot.GetWidget(), OutDescription.Notes);
}

void SComboButton::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.bHasDownArrow = bHasDownArrow;
	OutLook.bOpen = bIsOpen;
}

void SComboButton::ListPartsForHost(TArray<FHostWidgetPart>& OutParts)
{
	OutParts.Add(FHostWidgetPart::FromSlot(ChildSlot));
	for (int32 Index = 0; Index < OpenMenu.Num(); ++Index)
	{
		if (OpenMenu.GetChildAt(Index) != SNullWidget::NullWidget) // a plain list of options has none
		{
			OutParts.Add(FHostWidgetPart::FromSlot(OpenMenu.GetSlotAt(Index), EHostPart::Menu));
		}
	}
}

void SComboButton::ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions)
{
	const bool bWasOpen = IsOpen();
	SetIsOpen(true); // options may be filled in when the box opens
	const int32 NumOptions = CountOptionsForHost();
	for (int32 Index = 0; Index < NumOptions; ++Index)
	{
		OutOptions.Add(MakeOptionForHost(Index));
	}
	SetIsOpen(bWasOpen);
}

FHostInputResult SComboButton::TakeHostInput(const FHostInput& Input)
{
	if (Input.Kind == EHostInput::Click)
	{
		SetIsOpen(!IsOpen());
		return FHostInputResult::Done();
	}
	if (Input.Kind == EHostInput::Choose && CountOptionsForHost() >= 0)
	{
		return ChooseOption(Input.Text);
	}
	if (Input.Kind == EHostInput::Pick && Input.Index >= 0 && Input.Index < CountOptionsForHost())
	{
		PickOptionForHost(Input.Index);
		SetIsOpen(false);
		return FHostInputResult::Done();
	}
	return SCompoundWidget::TakeHostInput(Input);
}

FHostInputResult SComboButton::ChooseOption(const FString& Shown)
{
	SetIsOpen(true);
	int32 Found = INDEX_NONE;
	const int32 NumOptions = CountOptionsForHost();
	for (int32 Index = 0; Index < NumOptions && Found == INDEX_NONE; ++Index)
	{
		if (FHostWidgetAccess::TextOf(*MakeOptionForHost(Index)).Equals(Shown))
		{
			Found = Index;
		}
	}
	if (Found != INDEX_NONE)
	{
		PickOptionForHost(Found);
	}
	SetIsOpen(false);
	return Found != INDEX_NONE ? FHostInputResult::Done() : FHostInputResult::Refused(FString::Printf(TEXT("has no option \"%s\""), *Shown));
}
