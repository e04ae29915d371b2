// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Values/PropertyNode.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SCompoundWidget.h"

/** A combo box over the entries of an enum property. Hidden entries, and the one that only counts them, are not offered. */
class SPropertyEnum : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SPropertyEnum)
		{
		}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<FPropertyNode>& InNode);

private:
	/** The index of an entry, for the combo box to hold. */
	using FEntry = TSharedPtr<int32>;

	void FillEntries(const UEnum& Enum);
	FText GetCurrentText() const;
	void HandleOpening();
	TSharedRef<SWidget> MakeEntry(FEntry Entry);
	void HandlePicked(FEntry Entry, ESelectInfo::Type SelectInfo);

	TSharedPtr<FPropertyNode> Node;
	TArray<FEntry> Entries;
	TSharedPtr<SComboBox<FEntry>> Combo;
};
