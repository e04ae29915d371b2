// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/SPanel.h"

/** Widgets that stand together, and mean nothing beyond what each of them means. */
class SPartList : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SPartList)
		{
		}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}

	void AddPart(const TSharedRef<SWidget>& Part)
	{
		const TSharedRef<FSlotBase> Slot = MakeShared<FSlotBase>();
		Slot->AttachWidget(Part);
		Parts.AddSlot(Slot);
	}
	void Clear() { Parts.Empty(); }

	virtual FChildren* GetChildren() override { return &Parts; }

private:
	TPanelChildren<FSlotBase> Parts;
};
