// Copyright Velmorant. All Rights Reserved.

#include "HostMenus.h"

#include "HostState.h"
#include "HostWidget.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace HostMenus
{
	TArray<TWeakPtr<SComboButton>>& GetOpened()
	{
		static THostState<TArray<TWeakPtr<SComboButton>>> State;
		return State.Get();
	}

	void NoteOpened(const TSharedRef<SComboButton>& Button)
	{
		TArray<TWeakPtr<SComboButton>>& Opened = GetOpened();
		Opened.RemoveAll([&Button](const TWeakPtr<SComboButton>& Earlier) { return !Earlier.IsValid() || !Earlier.Pin()->IsOpen() || Earlier.Pin() == Button; });
		Opened.Add(Button);
	}

	void DismissAll()
	{
		const TArray<TWeakPtr<SComboButton>> Opened = GetOpened(); // a copy: closing may open others
		GetOpened().Empty();
		for (int32 Index = Opened.Num() - 1; Index >= 0; --Index)
		{
			if (const TSharedPtr<SComboButton> Button = Opened[Index].Pin())
			{
				Button->SetIsOpen(false);
			}
		}
	}

	FString DescribeIcon(const FSlateIcon& Icon)
	{
		if (!Icon.IsSet())
		{
			return FString();
		}
		const bool bKnown = Icon.GetIcon() != FStyleDefaults::GetNoBrush();
		return (bKnown ? TEXT("icon: ") : TEXT("missing icon: ")) + Icon.GetStyleName().ToString();
	}

	TOptional<FSlateBrush> FindBrush(const FSlateIcon& Icon)
	{
		const FSlateBrush* Brush = Icon.IsSet() ? Icon.GetIcon() : nullptr;
		return Brush != nullptr && Brush != FStyleDefaults::GetNoBrush() ? TOptional<FSlateBrush>(*Brush) : TOptional<FSlateBrush>();
	}
}

void SHostMenu::Construct(const FArguments& InArgs)
{
	Role = InArgs._Role;
}

void SHostMenu::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = Role;
}

/** The text of a section's heading; the section itself says it. */
class SHostMenuHeading : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SHostMenuHeading)
		{
		}
		SLATE_ATTRIBUTE(FText, Text)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		ChildSlot[SNew(STextBlock).Text(InArgs._Text)];
	}

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override
	{
		OutDescription.bTransparent = true;
		OutDescription.bSealed = true;
	}
};

void SHostMenuSection::Construct(const FArguments& InArgs)
{
	Heading = InArgs._Heading;
	if (Heading.IsSet())
	{
		AddPart(SNew(SHostMenuHeading).Text(Heading));
	}
}

void SHostMenuSection::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("section");
	OutDescription.Label = Heading.Get(FText::GetEmpty()).ToString();
	OutDescription.bTransparent = OutDescription.Label.IsEmpty(); // unless it has a name
}

void SHostMenuEntry::Construct(const FArguments& InArgs)
{
	Role = InArgs._Role;
	Label = InArgs._Label;
	ToolTip = InArgs._ToolTipText;
	Icon = InArgs._Icon;
	ActionType = InArgs._ActionType;
	CheckState = InArgs._CheckState;
	bClosesMenus = InArgs._ClosesMenus;
	OnChosen = InArgs._OnChosen;
	const bool bOwnContent = InArgs._Content.Widget != SNullWidget::NullWidget;
	ChildSlot[bOwnContent ? InArgs._Content.Widget : SNew(STextBlock).Text(Label)];
}

bool SHostMenuEntry::HasState() const
{
	return ActionType == EUserInterfaceActionType::ToggleButton || ActionType == EUserInterfaceActionType::RadioButton || ActionType == EUserInterfaceActionType::Check;
}

void SHostMenuEntry::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = Role;
	const FString Content = FHostWidgetAccess::TextOf(*ChildSlot.GetWidget());
	OutDescription.Label = Content.IsEmpty() ? Label.Get(FText::GetEmpty()).ToString() : Content;
	OutDescription.bSealed = true;
	if (HasState())
	{
		OutDescription.Checked = CheckState.Get(ECheckBoxState::Unchecked);
	}
	const FString IconFact = HostMenus::DescribeIcon(Icon.Get(FSlateIcon()));
	if (!IconFact.IsEmpty())
	{
		OutDescription.Notes.Add(IconFact);
	}
}

void SHostMenuEntry::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.Brush = HostMenus::FindBrush(Icon.Get(FSlateIcon()));
}

FHostInputResult SHostMenuEntry::TakeHostInput(const FHostInput& Input)
{
	if (Input.Kind != EHostInput::Click)
	{
		return SCompoundWidget::TakeHostInput(Input);
	}
	const FOnChosen HeldWhileRunning = OnChosen;
	if (bClosesMenus)
	{
		HostMenus::DismissAll();
	}
	const bool bRan = HeldWhileRunning.IsBound() && HeldWhileRunning.Execute();
	return bRan ? FHostInputResult::Done() : FHostInputResult::Refused(TEXT("does nothing"));
}
