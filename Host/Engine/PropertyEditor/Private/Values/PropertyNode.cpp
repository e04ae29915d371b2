// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyNode.h"

#include "Kinds/PropertyKind.h"

TSharedRef<FPropertyNode> FPropertyNode::MakeRoot(const TArray<UObject*>& Objects)
{
	const TSharedRef<FPropertyNode> Root = MakeShareable(new FPropertyNode(nullptr));
	Root->Shown = MakeUnique<FShownObjects>(Objects);
	return Root;
}

TSharedRef<FPropertyNode> FPropertyNode::MakeBelow(const TSharedRef<FPropertyNode>& Above, FProperty* Property, TUniquePtr<IPropertyPlace> Place)
{
	const TSharedRef<FPropertyNode> Node = MakeShareable(new FPropertyNode(Property));
	Node->Place = MoveTemp(Place);
	Node->Parent = Above;
	return Node;
}

FPropertyNode::FPropertyNode(FProperty* InProperty)
	: Property(InProperty)
	, Kind(FPropertyKind::Of(InProperty))
{
}

FString FPropertyNode::GetPath() const
{
	const TSharedPtr<FPropertyNode> Above = GetParent();
	if (IsRoot() || !Above.IsValid() || Above->IsRoot())
	{
		return IsRoot() ? FString() : Place->GetName();
	}
	return Above->GetPath() + (Place->IsElement() ? TEXT("") : TEXT(".")) + Place->GetName();
}

TArray<UObject*> FPropertyNode::GetObjects() const
{
	if (IsRoot())
	{
		return Shown->GetAll();
	}
	const TSharedPtr<FPropertyNode> Above = GetParent();
	return Above.IsValid() ? Above->GetObjects() : TArray<UObject*>();
}

bool FPropertyNode::GetValues(TArray<void*>& OutValues) const
{
	OutValues.Empty();
	if (IsRoot())
	{
		for (UObject* Object : GetObjects())
		{
			OutValues.Add(Object);
		}
		return !OutValues.IsEmpty();
	}
	const TSharedPtr<FPropertyNode> Above = GetParent();
	if (!Above.IsValid() || !Above->GetValues(OutValues))
	{
		return false;
	}
	for (void*& Value : OutValues)
	{
		Value = Place->GoFrom(Value);
		if (Value == nullptr)
		{
			return false;
		}
	}
	return true;
}

bool FPropertyNode::HasValues() const
{
	TArray<void*> Values;
	return GetValues(Values);
}

const TArray<TSharedRef<FPropertyNode>>& FPropertyNode::GetChildren()
{
	TArray<void*> Values;
	if (bHasMembers)
	{
		return Children;
	}
	if (IsRoot())
	{
		AddMembers(Shown->FindCommonClass());
	}
	else if (!GetValues(Values))
	{
		Children.Empty();
	}
	else if (const UStruct* Struct = Kind.FindStruct(*Property))
	{
		AddMembers(Struct);
	}
	else
	{
		Kind.FitElements(AsShared(), Values, Children);
	}
	return Children;
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
		if (Member->HasAnyPropertyFlags(CPF_Edit))
		{
			Children.Add(MakeBelow(AsShared(), Member, MakeUnique<FMemberPlace>(*Member)));
		}
	}
}

TSharedPtr<FPropertyNode> FPropertyNode::FindChild(FName Name, bool bRecurse)
{
	for (const TSharedRef<FPropertyNode>& Child : GetChildren())
	{
		if (Child->Place->IsCalled(Name))
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

bool FPropertyNode::IsInSet() const
{
	if (IsRoot())
	{
		return false;
	}
	const TSharedPtr<FPropertyNode> Above = GetParent();
	return Place->IsFixed() || (Above.IsValid() && Above->IsInSet());
}

bool FPropertyNode::IsReadOnly() const
{
	if (IsRoot())
	{
		return false;
	}
	const TSharedPtr<FPropertyNode> Above = GetParent();
	return Property->HasAnyPropertyFlags(CPF_EditConst) || IsInSet() || (Above.IsValid() && Above->IsReadOnly());
}
