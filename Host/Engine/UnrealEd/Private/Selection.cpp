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
	Objects.Add(InObject);
	if (AActor* Actor = Cast<AActor>(InObject))
	{
		Actor->bSelected = true;
	}
}

void USelection::Deselect(UObject* InObject)
{
	if (AActor* Actor = Cast<AActor>(InObject))
	{
		Actor->bSelected = false;
	}
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

void USelection::ForgetDestroyed() const
{
	Objects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
}
