// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyNode.h"

namespace PropertyNode
{
	static UClass* FindCommonClass(const TArray<UObject*>& Objects)
	{
		UClass* Common = Objects.IsEmpty() ? nullptr : Objects[0]->GetClass();
		for (const UObject* Object : Objects)
		{
			while (!Object->IsA(Common))
			{
				Common = Common->GetSuperClass();
			}
		}
		return Common;
	}
}

TSharedRef<FPropertyNode> FPropertyNode::MakeRoot(const TArray<UObject*>& Objects)
{
	const TSharedRef<FPropertyNode> Root = MakeShared<FPropertyNode>(nullptr);
	for (UObject* Object : Objects)
	{
		if (IsValid(Object))
		{
			Root->Objects.AddUnique(TWeakObjectPtr<UObject>(Object));
		}
	}
	return Root;
}

FPropertyNode::FPropertyNode(FProperty* InProperty, int32 InIndex)
	: Property(InProperty)
	, Index(InIndex)
{
}

TArray<UObject*> FPropertyNode::GetObjects() const
{
	if (!IsRoot())
	{
		const TSharedPtr<FPropertyNode> Above = GetParent();
		return Above.IsValid() ? Above->GetObjects() : TArray<UObject*>();
	}
	const TArray<UObject*> Remaining = GetRemainingObjects();
	return Remaining.Num() == Objects.Num() ? Remaining : TArray<UObject*>();
}

bool FPropertyNode::HasLostObjects() const
{
	return GetRemainingObjects().Num() != Objects.Num();
}

TArray<UObject*> FPropertyNode::GetRemainingObjects() const
{
	TArray<UObject*> Result;
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		if (Object.IsValid())
		{
			Result.Add(Object.Get());
		}
	}
	return Result;
}

UClass* FPropertyNode::GetClass() const
{
	return PropertyNode::FindCommonClass(GetObjects());
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
		Value = GoFrom(Value, *Above);
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

/** Null when the container has no such element. */
void* FPropertyNode::GoFrom(void* ParentValue, const FPropertyNode& ParentNode) const
{
	if (const FArrayProperty* Array = Index != INDEX_NONE ? CastField<FArrayProperty>(ParentNode.Property) : nullptr)
	{
		const FScriptArrayHelper Elements(Array, ParentValue);
		return Elements.IsValidIndex(Index) ? Elements.GetRawPtr(Index) : nullptr;
	}
	if (Key.IsValid())
	{
		const FMapProperty* Map = CastField<FMapProperty>(ParentNode.Property);
		return Map != nullptr ? Map->GetOps().Find(ParentValue, Key->Get()) : CastFieldChecked<FSetProperty>(ParentNode.Property)->GetOps().Find(ParentValue, Key->Get());
	}
	return Property->ContainerPtrToValuePtr(ParentValue);
}

bool FPropertyNode::IsContainer() const
{
	return Property != nullptr && (Property->IsA<FArrayProperty>() || Property->IsA<FSetProperty>() || Property->IsA<FMapProperty>());
}

bool FPropertyNode::IsInSet() const
{
	const TSharedPtr<FPropertyNode> Above = GetParent();
	return Above.IsValid() && !Above->IsRoot() && (Above->Property->IsA<FSetProperty>() || Above->IsInSet());
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

FString FPropertyNode::GetName() const
{
	if (Index != INDEX_NONE)
	{
		return FString::Printf(TEXT("[%d]"), Index);
	}
	return Key.IsValid() ? TEXT("[") + KeyText + TEXT("]") : Property->GetName();
}

FString FPropertyNode::GetPath() const
{
	const TSharedPtr<FPropertyNode> Above = GetParent();
	if (IsRoot() || !Above.IsValid() || Above->IsRoot())
	{
		return IsRoot() ? FString() : GetName();
	}
	const bool bElement = Index != INDEX_NONE || Key.IsValid();
	return Above->GetPath() + (bElement ? TEXT("") : TEXT(".")) + GetName();
}

FText FPropertyNode::GetDisplayName() const
{
	if (Index != INDEX_NONE)
	{
		return FText::Format(NSLOCTEXT("PropertyEditor", "ElementName", "Index [ {0} ]"), FText::AsNumber(Index));
	}
	return Key.IsValid() ? FText::FromString(KeyText) : Property->GetDisplayNameText();
}
