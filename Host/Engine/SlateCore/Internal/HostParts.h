// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/Children.h"
#include "Widgets/SPanel.h"

namespace HostParts
{
	/** Puts a widget behind the others, in a slot that asks for no place of its own. */
	inline void Add(const TSharedRef<SWidget>& Part, TPanelChildren<FSlotBase>& InOutChildren)
	{
		const TSharedRef<FSlotBase> Slot = MakeShared<FSlotBase>();
		Slot->AttachWidget(Part);
		InOutChildren.AddSlot(Slot);
	}
}

/** Widgets that stand together, and mean nothing beyond what each of them means. */
class SHostPartList : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SHostPartList)
		{
		}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}

	void AddPart(const TSharedRef<SWidget>& Part) { HostParts::Add(Part, Parts); }
	void Clear() { Parts.Empty(); }

	virtual FChildren* GetChildren() override { return &Parts; }

private:
	TPanelChildren<FSlotBase> Parts;
};
