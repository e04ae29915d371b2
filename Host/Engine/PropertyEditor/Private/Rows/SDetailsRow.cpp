// Copyright Velmorant. All Rights Reserved.

#include "Rows/SDetailsRow.h"

#include "DetailWidgetRow.h"
#include "HostParts.h"
#include "HostSearchWords.h"
#include "IPropertyTypeCustomization.h"
#include "Rows/DetailsRowBuilder.h"
#include "Values/PropertyNode.h"

namespace DetailsRow
{
	/** A click means a button rather than the list beside it, which only opens. */
	enum class EEagerness : uint8
	{
		First,
		Last,
	};

	bool Takes(const FString& Role, EHostInput Kind, EEagerness Eagerness)
	{
		if (Eagerness == EEagerness::Last)
		{
			return Kind == EHostInput::Click && (Role == TEXT("menu button") || Role == TEXT("combo"));
		}
		switch (Kind)
		{
			case EHostInput::Type: return Role == TEXT("edit") || Role == TEXT("search");
			case EHostInput::Choose: return Role == TEXT("combo") || Role == TEXT("list") || Role == TEXT("tiles");
			case EHostInput::Check: return Role == TEXT("checkbox");
			case EHostInput::Click: return Role == TEXT("button") || Role == TEXT("checkbox");
			default: return false; // a person sees the parts of the line
		}
	}

	/** The first widget below that takes the input; null when none that can be reached does. */
	TSharedPtr<SWidget> FindTaker(const TSharedRef<SWidget>& Widget, EHostInput Kind, EEagerness Eagerness)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Widget);
		if (!Description.bVisible)
		{
			return nullptr;
		}
		if (Takes(Description.Role, Kind, Eagerness))
		{
			return Widget;
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			if (const TSharedPtr<SWidget> Found = FindTaker(Child, Kind, Eagerness))
			{
				return Found;
			}
		}
		return nullptr;
	}

	/** Whether all that shows are texts. */
	bool IsOnlyText(const TSharedRef<SWidget>& Widget)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Widget);
		if (!Description.bTransparent)
		{
			return Description.Role == TEXT("text");
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			if (!IsOnlyText(Child))
			{
				return false;
			}
		}
		return true;
	}
}

void SDetailsRow::Construct(const FArguments& InArgs, const FDetailWidgetRow& Content)
{
	Heading = InArgs._Heading;
	SearchWords = InArgs._SearchWords;
	Container = InArgs._Container;
	if (InArgs._Customization.IsValid())
	{
		Customizations.Add(InArgs._Customization);
	}
	NameWidget = Content.NameWidget.Widget;
	ValueWidget = Content.ValueWidget.Widget;
	ExtensionWidget = Content.ExtensionWidget.Widget;
	FitElements();
}

FString SDetailsRow::GetTitle() const
{
	return IsHeading() ? Heading.ToString() : FHostWidgetAccess::TextOf(*NameWidget);
}

bool SDetailsRow::ApplySearch(const FHostSearchWords& Words, bool bFoundAbove)
{
	const bool bFoundHere = bFoundAbove || Words.AreIn(GetTitle() + TEXT(" ") + SearchWords);
	bFound = bFoundHere;
	for (const TSharedRef<SDetailsRow>& Row : Rows)
	{
		bFound |= Row->ApplySearch(Words, bFoundHere);
	}
	return bFound;
}

bool SDetailsRow::FitElements()
{
	bool bChanged = false;
	if (Container.IsValid() && Container->GetChildren() != ShownElements)
	{
		ShownElements = Container->GetChildren();
		Rows.Empty();
		for (const TSharedRef<FPropertyNode>& Element : ShownElements)
		{
			Rows.Append(DetailsRowBuilder::MakeRows(Element));
		}
		bChanged = true;
	}
	for (const TSharedRef<SDetailsRow>& Row : Rows)
	{
		bChanged |= Row->FitElements();
	}
	return bChanged;
}

bool SDetailsRow::IsNamePlain() const
{
	return DetailsRow::IsOnlyText(NameWidget);
}

/** A widget that holds a value and no more than that: without a name or a label of its own, and nothing open below it. */
TSharedPtr<SWidget> SDetailsRow::FindPlainValue() const
{
	TSharedRef<SWidget> Widget = ValueWidget;
	FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Widget);
	while (Description.bTransparent && Description.bVisible && FHostWidgetAccess::ChildrenOf(*Widget).Num() == 1)
	{
		Widget = FHostWidgetAccess::ChildrenOf(*Widget)[0];
		Description = FHostWidgetAccess::Describe(*Widget);
	}
	const bool bHolds = Description.Value.IsSet() || Description.Checked.IsSet();
	const bool bBare = Description.Name.IsNone() && Description.Label.IsEmpty() && Description.ToolTip.IsEmpty() && !Description.bTransparent && Description.bVisible;
	const bool bClosed = Description.bSealed || FHostWidgetAccess::ChildrenOf(*Widget).IsEmpty();
	return bHolds && bBare && bClosed ? TSharedPtr<SWidget>(Widget) : nullptr;
}

FChildren* SDetailsRow::GetChildren()
{
	Shown.Empty();
	if (!IsNamePlain())
	{
		HostParts::Add(NameWidget, Shown);
	}
	if (!FindPlainValue().IsValid() && ValueWidget != SNullWidget::NullWidget)
	{
		HostParts::Add(ValueWidget, Shown);
	}
	if (ExtensionWidget != SNullWidget::NullWidget)
	{
		HostParts::Add(ExtensionWidget, Shown);
	}
	for (const TSharedRef<SDetailsRow>& Row : Rows)
	{
		if (Row->bFound)
		{
			HostParts::Add(Row, Shown);
		}
	}
	return &Shown;
}

void SDetailsRow::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = IsHeading() ? TEXT("category") : TEXT("row");
	OutDescription.Label = GetTitle();
	OutDescription.ToolTip = FHostWidgetAccess::Describe(*NameWidget).ToolTip;
	if (OutDescription.ToolTip.Equals(OutDescription.Label))
	{
		OutDescription.ToolTip.Empty(); // says no more than the name
	}
	const TSharedPtr<SWidget> Plain = FindPlainValue();
	if (!Plain.IsValid())
	{
		return;
	}
	const FHostWidgetDescription Value = FHostWidgetAccess::Describe(*Plain);
	OutDescription.Value = Value.Value;
	OutDescription.Checked = Value.Checked;
	OutDescription.bReadOnly = Value.bReadOnly;
	OutDescription.bPassword = Value.bPassword;
	OutDescription.bEnabled &= Value.bEnabled;
	OutDescription.Notes = Value.Notes;
	if (Value.Role != TEXT("text"))
	{
		OutDescription.Notes.Insert(Value.Role, 0);
	}
}

FHostInputResult SDetailsRow::TakeHostInput(const FHostInput& Input)
{
	const TSharedPtr<SWidget> Taker = FindTaker(Input.Kind);
	if (!Taker.IsValid())
	{
		return SCompoundWidget::TakeHostInput(Input);
	}
	if (!FHostWidgetAccess::Describe(*Taker).bEnabled)
	{
		return FHostInputResult::Refused(TEXT("is disabled"));
	}
	return FHostWidgetAccess::Give(Taker.ToSharedRef(), Input);
}

void SDetailsRow::ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions)
{
	if (const TSharedPtr<SWidget> Taker = FindTaker(EHostInput::Choose))
	{
		OutOptions = FHostWidgetAccess::OptionWidgetsOf(Taker.ToSharedRef());
	}
}

void SDetailsRow::ListPartsForHost(TArray<FHostWidgetPart>& OutParts)
{
	const auto Add = [&OutParts](const TSharedRef<SWidget>& Widget, EHostPart Kind) {
		if (Widget != SNullWidget::NullWidget)
		{
			OutParts.Add(FHostWidgetPart{Widget, Kind, {}, HAlign_Fill, VAlign_Center, {}, 0.0f});
		}
	};
	Add(NameWidget, EHostPart::RowName);
	Add(ValueWidget, EHostPart::RowValue);
	Add(ExtensionWidget, EHostPart::RowExtension);
	for (const TSharedRef<SDetailsRow>& Row : Rows)
	{
		if (Row->bFound)
		{
			Add(Row, EHostPart::RowBelow);
		}
	}
}

/** In this line, not below it. */
TSharedPtr<SWidget> SDetailsRow::FindTaker(EHostInput Kind) const
{
	for (const DetailsRow::EEagerness Eagerness : {DetailsRow::EEagerness::First, DetailsRow::EEagerness::Last})
	{
		for (const TSharedRef<SWidget>& Part : {ValueWidget, ExtensionWidget, NameWidget})
		{
			if (const TSharedPtr<SWidget> Found = DetailsRow::FindTaker(Part, Kind, Eagerness))
			{
				return Found;
			}
		}
	}
	return nullptr;
}
