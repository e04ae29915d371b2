// Copyright Velmorant. All Rights Reserved.

#include "Selection.h"

#include "GameFramework/Actor.h"
#include "HostState.h"

USelection::FOnSelectionChanged USelection::SelectionChangedEvent;

namespace Selection
{
	const FHostStateReset Reset([] { USelection::SelectionChangedEvent.Clear(); });
}

int32 USelection::Num() const
{
	ForgetDestroyed();
	return Objects.Num();
}

UObject* USelection::GetSelectedObject(int32 InIndex) const
{
	ForgetDestroyed();
	return Objects.IsValidIndex(InIndex) ? Objects[InIndex].Get() : nullptr;
}

bool USelection::IsSelected(const UObject* InObject) const
{
	return InObject != nullptr && Objects.ContainsByPredicate([InObject](const TWeakObjectPtr<UObject>& Object) { return Object.Get() == InObject; });
}

void USelection::Select(UObject* InObject)
{
	if (InObject == nullptr || IsSelected(InObject))
	{
		return;
	}
	Modify();
	Objects.Add(InObject);
	MarkSelected(InObject, true);
}

void USelection::Deselect(UObject* InObject)
{
	Modify();
	MarkSelected(InObject, false);
	Objects.RemoveAll([InObject](const TWeakObjectPtr<UObject>& Object) { return Object.Get() == InObject; });
}

void USelection::DeselectAll()
{
	while (!Objects.IsEmpty())
	{
		Deselect(Objects.Last().Get());
	}
}

void USelection::NoteSelectionChanged()
{
	SelectionChangedEvent.Broadcast(this);
}

bool USelection::Modify(bool bAlwaysMarkDirty)
{
	ForgetDestroyed(); // their leaving is no change of the selection
	return Super::Modify(bAlwaysMarkDirty);
}

void USelection::PreEditUndo()
{
	Super::PreEditUndo();
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		MarkSelected(Object.Get(), false);
	}
}

void USelection::PostEditUndo()
{
	Super::PostEditUndo();
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		MarkSelected(Object.Get(), true);
	}
	NoteSelectionChanged();
}

void USelection::MarkSelected(UObject* Object, bool bSelected)
{
	if (AActor* Actor = Cast<AActor>(Object))
	{
		Actor->bSelected = bSelected;
	}
}

void USelection::ForgetDestroyed() const
{
	Objects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) {
		if (!Object.IsValid())
		{
			MarkSelected(Object.Get(true), false); // an undo may bring it back
		}
		return !Object.IsValid();
	});
}
