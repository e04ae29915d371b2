// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyChange.h"

#include "ScopedTransaction.h"
#include "UObject/StrongObjectPtr.h"
#include "Values/PropertyNode.h"

#define LOCTEXT_NAMESPACE "PropertyChange"

namespace PropertyChange
{
	/** The listeners of the property, then those of what lies below it: those values are new, too. */
	void TellBelow(const TSharedRef<FPropertyNode>& Node)
	{
		Node->OnValueChanged.Broadcast();
		const TArray<TSharedRef<FPropertyNode>> Below = Node->GetChildren(); // a copy: listeners may change the value again
		for (const TSharedRef<FPropertyNode>& Child : Below)
		{
			TellBelow(Child);
		}
	}
}

FPropertyChange::FPropertyChange(FPropertyNode& InNode)
	: Node(InNode.AsShared())
{
	TArray<void*> Values;
	if (!Node->IsRoot() && Node->GetValues(Values))
	{
		for (const void* Value : Values)
		{
			NewValues.Add(MakeUnique<FScratchValue>(Node->GetProperty()));
			Node->GetProperty()->CopyCompleteValue(NewValues.Last()->Get(), Value);
		}
	}
}

FPropertyAccess::Result FPropertyChange::Apply(EPropertyValueSetFlags::Type Flags, EPropertyChangeType::Type ChangeType)
{
	TArray<void*> Values;
	if (NewValues.IsEmpty() || Node->IsInSet() || !Node->GetValues(Values))
	{
		return FPropertyAccess::Fail;
	}
	const bool bInteractive = (Flags & EPropertyValueSetFlags::InteractiveChange) != 0;
	const bool bRecorded = !bInteractive && (Flags & EPropertyValueSetFlags::NotTransactable) == 0;
	const bool bEndsInteraction = bRecorded && !Node->ValuesBeforeInteraction.IsEmpty();
	const FScopedTransaction Transaction(FText::Format(LOCTEXT("EditProperty", "Edit {0}"), Node->GetPlace().GetDisplayName()), bRecorded);
	if (bInteractive)
	{
		KeepValuesBeforeInteraction(Values);
	}
	else if (bEndsInteraction)
	{
		TakeInteractionBack(Values);
	}
	const TArray<UObject*> Objects = Node->GetObjects();
	TArray<TStrongObjectPtr<UObject>> HeldWhileTelling;
	for (UObject* Object : Objects)
	{
		HeldWhileTelling.Emplace(Object);
		if (bRecorded)
		{
			Object->Modify(); // first: what it does when it is told belongs to the step
		}
		else
		{
			Object->MarkPackageDirty();
		}
		Object->PreEditChange(Node->GetProperty());
	}
	if (!Write())
	{
		return FPropertyAccess::Fail; // an object that was told took the value away
	}
	TellObjects(Objects, bInteractive ? EPropertyChangeType::Interactive : ChangeType);
	TellListeners();
	return FPropertyAccess::Success;
}

bool FPropertyChange::Write() const
{
	TArray<void*> Values;
	if (!Node->GetValues(Values) || Values.Num() != Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		Node->GetProperty()->CopyCompleteValue(Values[Index], GetNewValue(Index));
	}
	return true;
}

void FPropertyChange::KeepValuesBeforeInteraction(const TArray<void*>& Values) const
{
	if (!Node->ValuesBeforeInteraction.IsEmpty())
	{
		return;
	}
	for (const void* Value : Values)
	{
		const TSharedRef<FScratchValue> Kept = MakeShared<FScratchValue>(Node->GetProperty());
		Node->GetProperty()->CopyCompleteValue(Kept->Get(), Value);
		Node->ValuesBeforeInteraction.Add(Kept);
	}
}

/** For as long as it takes to record the objects: the new value is written right after that. */
void FPropertyChange::TakeInteractionBack(const TArray<void*>& Values) const
{
	for (int32 Index = 0; Index < Values.Num() && Values.Num() == Node->ValuesBeforeInteraction.Num(); ++Index)
	{
		Node->GetProperty()->CopyCompleteValue(Values[Index], Node->ValuesBeforeInteraction[Index]->Get());
	}
	Node->ValuesBeforeInteraction.Empty();
}

void FPropertyChange::TellObjects(const TArray<UObject*>& Objects, EPropertyChangeType::Type ChangeType) const
{
	TArray<FProperty*> FromMember;
	for (TSharedPtr<FPropertyNode> Each = Node; Each.IsValid() && !Each->IsRoot(); Each = Each->GetParent())
	{
		FromMember.Insert(Each->GetProperty(), 0);
	}
	FEditPropertyChain Chain;
	for (FProperty* Property : FromMember)
	{
		Chain.AddTail(Property);
	}
	for (int32 Index = 0; Index < Objects.Num(); ++Index)
	{
		FPropertyChangedEvent Event(Node->GetProperty(), ChangeType);
		Event.SetActiveMemberProperty(Chain.GetActiveMemberNode());
		Event.ObjectIteratorIndex = Index;
		FPropertyChangedChainEvent ChainEvent(Chain, Event);
		Objects[Index]->PostEditChangeChainProperty(ChainEvent);
	}
}

void FPropertyChange::TellListeners() const
{
	TArray<TSharedRef<FPropertyNode>> Above; // collected first: listeners may close the panel
	for (TSharedPtr<FPropertyNode> Each = Node->GetParent(); Each.IsValid(); Each = Each->GetParent())
	{
		Above.Add(Each.ToSharedRef());
	}
	PropertyChange::TellBelow(Node);
	for (const TSharedRef<FPropertyNode>& Each : Above)
	{
		Each->OnChildValueChanged.Broadcast();
	}
}

#undef LOCTEXT_NAMESPACE
