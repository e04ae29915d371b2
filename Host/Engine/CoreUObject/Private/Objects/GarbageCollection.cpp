// Copyright Velmorant. All Rights Reserved.
// Mark and sweep over reflected references, and the end of an editor.

#include "Objects/ObjectTable.h"
#include "UObject/Class.h"
#include "UObject/GCObject.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

/** Marks whatever it is told of, and then what those refer to. */
class FReachability final : public FReferenceCollector
{
public:
	explicit FReachability(FObjectTable& InTable)
		: Table(InTable)
	{
	}

	void Reach(UObject* Object)
	{
		FObjectItem& Item = Table.GetItem(Object);
		if (Item.Mark != Table.CurrentMark)
		{
			Item.Mark = Table.CurrentMark;
			Pending.Add(Object);
		}
	}

	void FollowAll()
	{
		while (!Pending.IsEmpty())
		{
			Follow(Pending.Pop());
		}
	}

protected:
	void HandleObjectReference(UObject*& Object) override { Reach(Object); }

private:
	void Follow(UObject* Object)
	{
		UClass* Class = Object->GetClass();
		Reach(Class);
		if (Object->GetOuter())
		{
			Reach(Object->GetOuter());
		}
		for (const FProperty* Property : Class->GetReferenceProperties())
		{
			Property->CollectReferences(Property->ContainerPtrToValuePtr(Object), *this);
		}
		Class->CollectReferences(Object, *this);
	}

	FObjectTable& Table;
	TArray<UObject*> Pending;
};

void FObjectTable::MarkReachable(EObjectFlags KeepFlags)
{
	++CurrentMark;
	FReachability Reachability(*this);
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		const FObjectItem& Item = Items[Index];
		const bool bKept = Item.Object && (Item.bNative || Item.bRooted || Item.StrongCount > 0 || (!Item.bGarbage && (Item.Object->GetFlags() & KeepFlags) != 0));
		if (bKept)
		{
			Reachability.Reach(Item.Object);
		}
	}
	for (FGCObject* Referencer = FirstReferencer; Referencer; Referencer = Referencer->Next)
	{
		Referencer->AddReferencedObjects(Reachability);
	}
	Reachability.FollowAll();
}

int32 FObjectTable::CollectGarbage(EObjectFlags KeepFlags)
{
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	MarkReachable(KeepFlags);
	TArray<int32> Doomed;
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		if (Items[Index].Object && Items[Index].Mark != CurrentMark)
		{
			Doomed.Add(Index);
		}
	}
	Destroy(Doomed);
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
	return Doomed.Num();
}

void FObjectTable::Destroy(const TArray<int32>& Doomed)
{
	for (const int32 Index : Doomed)
	{
		Items[Index].bUnreachable = true;
	}
	for (const int32 Index : Doomed)
	{
		Items[Index].Object->ConditionalBeginDestroy();
	}
	TArray<int32> Plain;
	TArray<int32> TypesAndPackages;
	Plain.Reserve(Doomed.Num());
	for (const int32 Index : Doomed)
	{
		const UClass* Class = Items[Index].Object->GetClass();
		const bool bNeeded = Class->IsChildOf(UField::StaticClass()) || Class->IsChildOf(UPackage::StaticClass());
		(bNeeded ? TypesAndPackages : Plain).Add(Index);
		Unlink(Index);
		Items[Index].HashNext = INDEX_NONE;
		Items[Index].FirstInner = INDEX_NONE;
		Items[Index].Mark = MAX_uint32; // no longer in the hash
	}
	for (const int32 Index : Plain)
	{
		DestroyOne(Index);
	}
	for (const int32 Index : TypesAndPackages)
	{
		DestroyOne(Index);
	}
}

void FObjectTable::DestroyOne(int32 Index)
{
	UObject* Object = Items[Index].Object;
	const UClass* Class = Object->GetClass();
	const int32 Size = Class->GetPropertiesSize(); // the class itself may be what dies
	const int32 Alignment = Class->GetMinAlignment();
	Object->~UObject();
	Free(Object, Size, Alignment);
	FreeSlot(Index);
}

void FObjectTable::FreeSlot(int32 Index)
{
	Items[Index].Object = nullptr;
	DropNextNumbers(Items[Index]);
	FreeSlots.Add(Index);
	--NumObjects;
}

void FObjectTable::DropHalfMade(UObject* Object, UClass* Class, bool bRegistered)
{
	if (Class->ClassDefaultObject == Object)
	{
		Class->ClassDefaultObject = nullptr;
	}
	if (bRegistered)
	{
		const int32 Index = IndexOf(Object);
		Unlink(Index);
		FreeSlot(Index);
	}
	Free(Object, Class->GetPropertiesSize(), Class->GetMinAlignment());
}

void FObjectTable::TearDown()
{
	TArray<int32> Doomed;
	do
	{
		Doomed.Reset();
		for (int32 Index = 0; Index < Items.Num(); ++Index)
		{
			if (Items[Index].Object && !Items[Index].bNative)
			{
				Doomed.Add(Index);
			}
		}
		Destroy(Doomed);
		for (const FObjectItem& Item : Items)
		{
			if (Item.Object && Item.Object->GetClass()->IsChildOf(UClass::StaticClass()))
			{
				UClass* Class = static_cast<UClass*>(Item.Object);
				Class->ClassDefaultObject = nullptr;
			}
		}
		for (FObjectItem& Item : Items)
		{
			DropNextNumbers(Item);
		}
		TransientPackage = nullptr;
	} while (!Doomed.IsEmpty()); // a destructor may have asked for a default object
	PackageLoader = nullptr;
}

void FObjectTable::AddReferencer(FGCObject* Referencer)
{
	Referencer->Previous = nullptr;
	Referencer->Next = FirstReferencer;
	if (FirstReferencer)
	{
		FirstReferencer->Previous = Referencer;
	}
	FirstReferencer = Referencer;
}

void FObjectTable::RemoveReferencer(FGCObject* Referencer)
{
	(Referencer->Previous ? Referencer->Previous->Next : FirstReferencer) = Referencer->Next;
	if (Referencer->Next)
	{
		Referencer->Next->Previous = Referencer->Previous;
	}
}

FGCObject::FGCObject()
{
	FObjectTable::Get().AddReferencer(this);
}

FGCObject::FGCObject(const FGCObject&)
	: FGCObject()
{
}

FGCObject::~FGCObject()
{
	FObjectTable::Get().RemoveReferencer(this);
}

void CollectGarbage(EObjectFlags KeepFlags, bool)
{
	FObjectTable::Get().CollectGarbage(KeepFlags);
}

namespace UE::CoreUObject::Private
{
	FStrongReference::FStrongReference(const UObject* Object)
	{
		if (Object)
		{
			FObjectItem& Item = FObjectTable::Get().GetItem(Object);
			Index = static_cast<int32>(Object->GetUniqueID());
			SerialNumber = Item.SerialNumber;
			++Item.StrongCount;
		}
	}

	FStrongReference::FStrongReference(const FStrongReference& Other)
		: FStrongReference(Other.Get())
	{
	}

	FStrongReference::FStrongReference(FStrongReference&& Other) noexcept
		: Index(Other.Index)
		, SerialNumber(Other.SerialNumber)
	{
		Other.SerialNumber = 0;
	}

	FStrongReference& FStrongReference::operator=(FStrongReference Other) noexcept
	{
		std::swap(Index, Other.Index);
		std::swap(SerialNumber, Other.SerialNumber);
		return *this;
	}

	FStrongReference::~FStrongReference()
	{
		if (SerialNumber == 0)
		{
			return;
		}
		if (FObjectItem* Item = FObjectTable::Get().FindItem(Index, SerialNumber))
		{
			--Item->StrongCount;
		}
	}

	UObject* FStrongReference::Get() const
	{
		if (SerialNumber == 0)
		{
			return nullptr;
		}
		const FObjectItem* Item = FObjectTable::Get().FindItem(Index, SerialNumber);
		return Item ? Item->Object : nullptr;
	}
}
