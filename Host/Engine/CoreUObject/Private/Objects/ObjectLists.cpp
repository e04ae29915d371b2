// Copyright Velmorant. All Rights Reserved.

#include "UObject/UObjectHash.h"

#include "Objects/ObjectNameTable.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"

namespace ObjectLists
{
	/** Slots are reused, so their order is not that of creation. */
	void SortByAge(TArray<UObject*>& Objects)
	{
		const FObjectTable& Table = FObjectTable::Get();
		const auto Serial = [&Table](const UObject& Object) { return Table.GetItem(static_cast<int32>(Object.GetUniqueID())).SerialNumber; };
		bool bSorted = true;
		for (int32 Index = 1; Index < Objects.Num() && bSorted; ++Index)
		{
			bSorted = Serial(*Objects[Index - 1]) < Serial(*Objects[Index]);
		}
		if (!bSorted)
		{
			Objects.Sort([&Serial](const UObject& A, const UObject& B) { return Serial(A) < Serial(B); });
		}
	}

	void Collect(const UObject* Outer, bool bNested, TArray<UObject*>& Results)
	{
		FObjectNameTable::Get().ForEachInner(Outer, [bNested, &Results](UObject* Inner) {
			Results.Add(Inner);
			if (bNested)
			{
				Collect(Inner, bNested, Results);
			}
		});
	}
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExclusionFlags)
{
	Results.Reset();
	const FObjectTable& Table = FObjectTable::Get();
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		const FObjectItem& Item = Table.GetItem(Index);
		if (Item.Object && !Item.bGarbage && !Item.bUnreachable && (Item.Object->GetFlags() & ExclusionFlags) == 0 && (Item.Object->GetClass() == ClassToLookFor || (bIncludeDerivedClasses && Item.Object->IsA(ClassToLookFor))))
		{
			Results.Add(Item.Object);
		}
	}
	ObjectLists::SortByAge(Results);
}

void ForEachObjectWithOuter(const UObject* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags)
{
	TArray<UObject*> Found;
	ObjectLists::Collect(Outer, bIncludeNestedObjects, Found);
	for (UObject* Object : Found)
	{
		if ((Object->GetFlags() & ExclusionFlags) == 0 && IsValid(Object))
		{
			Operation(Object);
		}
	}
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags)
{
	ForEachObjectWithOuter(
		Outer, [&Results](UObject* Object) { Results.Add(Object); }, bIncludeNestedObjects, ExclusionFlags);
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	TArray<UObject*> Classes;
	GetObjectsOfClass(UClass::StaticClass(), Classes); // not the default object of UClass itself: it is no class and has no parents
	for (UObject* Object : Classes)
	{
		UClass* Class = static_cast<UClass*>(Object);
		const bool bDerived = Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor);
		if (bDerived && (bRecursive || Class->GetSuperClass() == ClassToLookFor))
		{
			Results.Add(Class);
		}
	}
}
