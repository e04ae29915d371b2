// Copyright Velmorant. All Rights Reserved.
// What lies below a property: members, and elements that come and go.

#include "Values/PropertyNode.h"

TSharedRef<FPropertyNode> FPropertyNode::AddChild(FProperty* ChildProperty, int32 ChildIndex)
{
	const TSharedRef<FPropertyNode> Child = MakeShared<FPropertyNode>(ChildProperty, ChildIndex);
	Child->Parent = AsShared();
	Children.Add(Child);
	return Child;
}

const TArray<TSharedRef<FPropertyNode>>& FPropertyNode::GetChildren()
{
	if (bHasMembers)
	{
		return Children;
	}
	if (IsRoot())
	{
		AddMembers(GetClass());
	}
	else if (!HasValues())
	{
		Children.Empty();
	}
	else if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
	{
		AddMembers(StructProperty->Struct);
	}
	else if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
	{
		FitArray(*Array);
	}
	else if (const FMapProperty* Map = CastField<FMapProperty>(Property))
	{
		FitKeyed(*Map->KeyProp, *Map->ValueProp);
	}
	else if (const FSetProperty* Set = CastField<FSetProperty>(Property))
	{
		FitKeyed(*Set->ElementProp, *Set->ElementProp);
	}
	return Children;
}

TSharedPtr<FPropertyNode> FPropertyNode::FindChild(FName Name, bool bRecurse)
{
	for (const TSharedRef<FPropertyNode>& Child : GetChildren())
	{
		const bool bNamed = Child->Key.IsValid() ? FName(*Child->KeyText) == Name : Child->Index == INDEX_NONE && Child->Property->GetFName() == Name;
		if (bNamed)
		{
			return Child;
		}
	}
	if (bRecurse)
	{
		for (const TSharedRef<FPropertyNode>& Child : GetChildren())
		{
			if (const TSharedPtr<FPropertyNode> Found = Child->FindChild(Name, true))
			{
				return Found;
			}
		}
	}
	return nullptr;
}

void FPropertyNode::AddMembers(const UStruct* Struct)
{
	if (Struct == nullptr)
	{
		return; // no objects (any more)
	}
	bHasMembers = true;
	for (FProperty* Member : TFieldRange<FProperty>(Struct))
	{
		if (Member->HasAnyPropertyFlags(CPF_Edit) && !Member->HasAnyPropertyFlags(CPF_Deprecated))
		{
			AddChild(Member);
		}
	}
}

/** As many elements as the shortest of the arrays has. */
void FPropertyNode::FitArray(const FArrayProperty& Array)
{
	TArray<void*> Values;
	GetValues(Values);
	int32 Num = MAX_int32;
	for (const void* Value : Values)
	{
		Num = FMath::Min(Num, FScriptArrayHelper(&Array, Value).Num());
	}
	if (Children.Num() > Num)
	{
		Children.RemoveAt(Num, Children.Num() - Num);
	}
	while (Children.Num() < Num)
	{
		AddChild(Array.Inner, Children.Num());
	}
}

/** The keys of the first object's container, unless another object's has others; pointers into the container. */
TArray<const void*> FPropertyNode::CollectCommonKeys() const
{
	const FMapProperty* Map = CastField<FMapProperty>(Property);
	const UE::Reflection::FKeyedOps& Ops = Map != nullptr ? Map->GetOps() : CastFieldChecked<FSetProperty>(Property)->GetOps();
	TArray<void*> Values;
	GetValues(Values);
	TArray<const void*> Keys;
	Ops.ForEach(
		Values[0], [](void* Context, const void* EachKey, void*) { static_cast<TArray<const void*>*>(Context)->Add(EachKey); }, &Keys);
	for (void* Value : Values)
	{
		bool bSame = Ops.Num(Value) == Keys.Num();
		for (int32 Each = 0; Each < Keys.Num() && bSame; ++Each)
		{
			bSame = Ops.Find(Value, Keys[Each]) != nullptr;
		}
		if (!bSame)
		{
			return TArray<const void*>();
		}
	}
	return Keys;
}

void FPropertyNode::FitKeyed(const FProperty& KeyProperty, FProperty& ElementProperty)
{
	const TArray<TSharedRef<FPropertyNode>> Before = MoveTemp(Children);
	Children.Empty();
	const TArray<const void*> Keys = CollectCommonKeys();
	for (int32 Each = 0; Each < Keys.Num(); ++Each)
	{
		if (Before.IsValidIndex(Each) && KeyProperty.Identical(Before[Each]->Key->Get(), Keys[Each]))
		{
			Children.Add(Before[Each]);
			continue;
		}
		const TSharedRef<FPropertyNode> Child = AddChild(&ElementProperty);
		Child->Key = MakeShared<FScratchValue>(&KeyProperty);
		KeyProperty.CopyCompleteValue(Child->Key->Get(), Keys[Each]);
		KeyProperty.ExportTextItem_Direct(Child->KeyText, Keys[Each], Keys[Each], nullptr, PPF_PropertyWindow);
	}
}
