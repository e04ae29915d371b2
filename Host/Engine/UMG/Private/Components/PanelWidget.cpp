// Copyright Velmorant. All Rights Reserved.

#include "Components/PanelWidget.h"

#include "Components/ContentWidget.h"

void UPanelSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (Content && bReleaseChildren)
	{
		Content->ReleaseSlateResources(bReleaseChildren);
	}
}

UClass* UPanelWidget::GetSlotClass() const
{
	return UPanelSlot::StaticClass();
}

UWidget* UPanelWidget::GetChildAt(int32 Index) const
{
	return Slots.IsValidIndex(Index) ? Slots[Index]->Content.Get() : nullptr;
}

TArray<UWidget*> UPanelWidget::GetAllChildren() const
{
	TArray<UWidget*> Result;
	for (const TObjectPtr<UPanelSlot>& ChildSlot : Slots)
	{
		Result.Add(ChildSlot->Content);
	}
	return Result;
}

int32 UPanelWidget::GetChildIndex(const UWidget* Content) const
{
	return Slots.IndexOfByPredicate([Content](const TObjectPtr<UPanelSlot>& ChildSlot) { return ChildSlot->Content == Content; });
}

UPanelSlot* UPanelWidget::AddChild(UWidget* Content)
{
	if (!Content || !CanAddMoreChildren())
	{
		return nullptr;
	}
	Content->RemoveFromParent();
	UPanelSlot* NewSlot = NewObject<UPanelSlot>(this, GetSlotClass());
	NewSlot->Parent = this;
	NewSlot->Content = Content;
	Content->Slot = NewSlot;
	Slots.Add(NewSlot);
	RefreshChildren();
	return NewSlot;
}

bool UPanelWidget::RemoveChild(UWidget* Content)
{
	return RemoveChildAt(GetChildIndex(Content));
}

bool UPanelWidget::RemoveChildAt(int32 Index)
{
	if (!Slots.IsValidIndex(Index))
	{
		return false;
	}
	UPanelSlot* Removed = Slots[Index];
	Slots.RemoveAt(Index);
	Removed->Content->Slot = nullptr;
	Removed->Parent = nullptr;
	RefreshChildren();
	Removed->ReleaseSlateResources(true);
	Removed->Content = nullptr;
	return true;
}

void UPanelWidget::ClearChildren()
{
	while (Slots.Num() > 0)
	{
		RemoveChildAt(Slots.Num() - 1);
	}
}

void UPanelWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (bReleaseChildren)
	{
		for (const TObjectPtr<UPanelSlot>& ChildSlot : Slots)
		{
			ChildSlot->ReleaseSlateResources(bReleaseChildren);
		}
	}
}

UPanelSlot* UContentWidget::SetContent(UWidget* Content)
{
	ClearChildren();
	return AddChild(Content);
}

UWidget* UContentWidget::GetContent() const
{
	return GetChildAt(0);
}

TSharedRef<SWidget> UContentWidget::TakeContent() const
{
	UWidget* Content = GetContent();
	return Content ? Content->TakeWidget() : SNullWidget::NullWidget;
}
