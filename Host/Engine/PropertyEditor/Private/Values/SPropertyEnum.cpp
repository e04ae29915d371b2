// Copyright Velmorant. All Rights Reserved.

#include "Values/SPropertyEnum.h"

#include "IPropertyTypeCustomization.h"
#include "Kinds/EnumKind.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"
#include "Widgets/Text/STextBlock.h"

void SPropertyEnum::Construct(const FArguments&, const TSharedRef<FPropertyNode>& InNode)
{
	Node = InNode;
	FillEntries(*FEnumKind::FindEnum(*Node->GetProperty()));
	// clang-format off
	ChildSlot
	[
		SAssignNew(Combo, SComboBox<FEntry>)
		.OptionsSource(&Entries)
		.OnComboBoxOpening(this, &SPropertyEnum::HandleOpening)
		.OnGenerateWidget(this, &SPropertyEnum::MakeEntry)
		.OnSelectionChanged(this, &SPropertyEnum::HandlePicked)
		[
			SNew(STextBlock)
			.Text(this, &SPropertyEnum::GetCurrentText)
			.Font(IPropertyTypeCustomizationUtils::GetRegularFont())
		]
	];
	// clang-format on
}

void SPropertyEnum::FillEntries(const UEnum& Enum)
{
	const int32 Num = Enum.ContainsExistingMax() ? Enum.NumEnums() - 1 : Enum.NumEnums();
	for (int32 Index = 0; Index < Num; ++Index)
	{
		if (!Enum.HasMetaData(TEXT("Hidden"), Index))
		{
			Entries.Add(MakeShared<int32>(Index));
		}
	}
}

FText SPropertyEnum::GetCurrentText() const
{
	FString Text;
	const FPropertyAccess::Result Result = Node->GetKind().ReadDisplayText(*Node, Text, PPF_PropertyWindow);
	return Result == FPropertyAccess::Success ? FText::FromString(Text) : PropertyWidgets::GetTextInPlaceOfValue(Result);
}

/** The value may have changed since the last pick: only one that differs from it is a pick. Several values are none. */
void SPropertyEnum::HandleOpening()
{
	TArray<void*> Values;
	if (PropertyValue::FindOne(*Node, Values) != FPropertyAccess::Success)
	{
		Combo->ClearSelection();
		return;
	}
	const int64 Value = FEnumKind::GetValue(*Node->GetProperty(), Values[0]);
	const UEnum* Enum = FEnumKind::FindEnum(*Node->GetProperty());
	const FEntry* Current = Entries.FindByPredicate([Enum, Value](const FEntry& Entry) { return Enum->GetValueByIndex(*Entry) == Value; });
	Combo->SetSelectedItem(Current != nullptr ? *Current : nullptr, ESelectInfo::Direct);
}

TSharedRef<SWidget> SPropertyEnum::MakeEntry(FEntry Entry)
{
	const UEnum* Enum = Node->HasValues() ? FEnumKind::FindEnum(*Node->GetProperty()) : nullptr;
	return SNew(STextBlock).Text(Enum != nullptr ? Enum->GetDisplayNameTextByIndex(*Entry) : FText::GetEmpty());
}

void SPropertyEnum::HandlePicked(FEntry Entry, ESelectInfo::Type SelectInfo)
{
	FPropertyChange Change(*Node);
	if (!Entry.IsValid() || SelectInfo == ESelectInfo::Direct || Change.Num() == 0)
	{
		return;
	}
	const int64 Value = FEnumKind::FindEnum(*Node->GetProperty())->GetValueByIndex(*Entry);
	for (int32 Index = 0; Index < Change.Num(); ++Index)
	{
		FEnumKind::SetValue(*Node->GetProperty(), Change.GetNewValue(Index), Value);
	}
	Change.Apply(EPropertyValueSetFlags::DefaultFlags);
}
