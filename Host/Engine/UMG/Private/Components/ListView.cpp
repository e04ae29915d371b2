// Copyright Velmorant. All Rights Reserved.

#include "Components/ListView.h"

#include "Blueprint/IUserObjectListEntry.h"
#include "Blueprint/UserWidget.h"
#include "UObject/UnrealType.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/SListView.h"
#include "Widgets/Views/STableRow.h"

namespace UMGListView
{
	/** What an item reads as when nobody said how to show it. */
	FText ReadableName(const UObject& Item)
	{
		const FProperty* Property = Item.GetClass()->FindPropertyByName(FName(TEXT("DisplayName")));
		if (const FStrProperty* String = CastField<FStrProperty>(Property))
		{
			return FText::FromString(String->GetPropertyValue_InContainer(&Item));
		}
		if (const FTextProperty* Text = CastField<FTextProperty>(Property))
		{
			return Text->GetPropertyValue_InContainer(&Item);
		}
		return FText::FromString(Item.GetName());
	}
}

void IUserObjectListEntry::SetListItemObject(UObject& EntryWidget, UObject* ListItemObject)
{
	if (IUserObjectListEntry* Entry = Cast<IUserObjectListEntry>(&EntryWidget))
	{
		Entry->NativeOnListItemObjectSet(ListItemObject);
	}
}

void IUserObjectListEntry::NativeOnListItemObjectSet(UObject* ListItemObject)
{
	Execute_OnListItemObjectSet(_getUObject(), ListItemObject);
}

TSharedPtr<SListView<UObject*>> UListView::GetList() const
{
	return StaticCastSharedPtr<SListView<UObject*>>(MyWidget.Pin());
}

TSharedRef<SWidget> UListView::RebuildWidget()
{
	// clang-format off
	return SNew(SListView<UObject*>)
		.ListItemsSource(&ListItems)
		.SelectionMode(ESelectionMode::Single)
		.OnGenerateRow_UObject(this, &UListView::HandleGenerateRow)
		.OnMouseButtonClick_UObject(this, &UListView::HandleItemClicked);
	// clang-format on
}

TSharedRef<SWidget> UListView::MakeEntry(UObject* Item)
{
	UUserWidget* Entry = EntryWidgetClass ? CreateWidget<UUserWidget>(this, EntryWidgetClass) : nullptr;
	if (!Entry)
	{
		return SNew(STextBlock).Text(UMGListView::ReadableName(*Item));
	}
	const TSharedRef<SWidget> Widget = Entry->TakeWidget();
	IUserObjectListEntry::SetListItemObject(*Entry, Item);
	return Widget;
}

TSharedRef<ITableRow> UListView::HandleGenerateRow(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable)
{
	return SNew(STableRow<UObject*>, OwnerTable)[MakeEntry(Item)];
}

void UListView::HandleItemClicked(UObject* Item)
{
	OnItemClickedEvent.Broadcast(Item);
	BP_OnItemClicked.Broadcast(Item);
}

void UListView::BP_SetListItems(const TArray<UObject*>& InListItems)
{
	SetListItems(InListItems);
}

void UListView::OnItemsChanged()
{
	RequestRefresh();
}

void UListView::SetSelectedItem(const UObject* Item)
{
	const TSharedPtr<SListView<UObject*>> List = GetList();
	UObject* Mutable = const_cast<UObject*>(Item);
	if (!List.IsValid())
	{
		return;
	}
	if (!Item)
	{
		List->ClearSelection();
	}
	else if (ListItems.Contains(Mutable))
	{
		List->SetSelection(Mutable);
	}
}

UObject* UListView::GetSelectedItem() const
{
	const TSharedPtr<SListView<UObject*>> List = GetList();
	return List.IsValid() && List->GetNumItemsSelected() > 0 ? List->GetSelectedItems()[0] : nullptr;
}

void UListView::RequestRefresh()
{
	if (const TSharedPtr<SListView<UObject*>> List = GetList())
	{
		List->RequestListRefresh();
	}
}
