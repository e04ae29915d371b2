// Copyright Velmorant. All Rights Reserved.

#include "Objects/GarbageCollector.h"

#include "Objects/EditorPackages.h"
#include "Objects/ObjectFactory.h"
#include "Objects/ObjectNameTable.h"
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
		, Mark(InTable.StartMarking())
	{
	}

	void Reach(UObject* Object)
	{
		FObjectItem& Item = Table.GetItem(Object);
		if (Item.Mark != Mark)
		{
			Item.Mark = Mark;
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
	const uint32 Mark;
	TArray<UObject*> Pending;
};

FGarbageCollector& FGarbageCollector::Get()
{
	static FGarbageCollector* const Collector = new FGarbageCollector(FObjectTable::Get());
	return *Collector;
}

void FGarbageCollector::MarkReachable(EObjectFlags KeepFlags)
{
	FReachability Reachability(Table);
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		const FObjectItem& Item = Table.GetItem(Index);
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

int32 FGarbageCollector::Collect(EObjectFlags KeepFlags)
{
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	MarkReachable(KeepFlags);
	TArray<int32> Doomed;
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		if (Table.GetItem(Index).Object && Table.GetItem(Index).Mark != Table.GetMark())
		{
			Doomed.Add(Index);
		}
	}
	Destroy(Doomed);
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
	return Doomed.Num();
}

void FGarbageCollector::Destroy(const TArray<int32>& Doomed)
{
	for (const int32 Index : Doomed)
	{
		Table.GetItem(Index).bUnreachable = true;
	}
	for (const int32 Index : Doomed)
	{
		Table.GetItem(Index).Object->ConditionalBeginDestroy();
	}
	TArray<int32> Plain;
	TArray<int32> TypesAndPackages;
	Plain.Reserve(Doomed.Num());
	for (const int32 Index : Doomed)
	{
		const UClass* Class = Table.GetItem(Index).Object->GetClass();
		const bool bNeeded = Class->IsChildOf(UField::StaticClass()) || Class->IsChildOf(UPackage::StaticClass());
		(bNeeded ? TypesAndPackages : Plain).Add(Index);
		FObjectNameTable::Get().Remove(Index);
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

void FGarbageCollector::DestroyOne(int32 Index)
{
	UObject* Object = Table.GetItem(Index).Object;
	const UClass* Class = Object->GetClass();
	const int32 Size = Class->GetPropertiesSize(); // the class itself may be what dies
	const int32 Alignment = Class->GetMinAlignment();
	Object->~UObject();
	FObjectFactory::Free(Object, Size, Alignment);
	FObjectNameTable::Get().DropNumbers(Index);
	Table.Release(Index);
}

void FGarbageCollector::TearDown()
{
	TArray<int32> Doomed;
	do
	{
		Doomed.Reset();
		for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
		{
			if (Table.GetItem(Index).Object && !Table.GetItem(Index).bNative)
			{
				Doomed.Add(Index);
			}
		}
		Destroy(Doomed);
		for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
		{
			UObject* Object = Table.GetItem(Index).Object;
			if (Object && Object->GetClass()->IsChildOf(UClass::StaticClass()))
			{
				static_cast<UClass*>(Object)->ClassDefaultObject = nullptr;
			}
			FObjectNameTable::Get().DropNumbers(Index);
		}
		FEditorPackages::Get().ForgetTransientPackage();
	} while (!Doomed.IsEmpty()); // a destructor may have asked for a default object
	FEditorPackages::Get().Loader = nullptr;
}

void FGarbageCollector::AddReferencer(FGCObject* Referencer)
{
	Referencer->Previous = nullptr;
	Referencer->Next = FirstReferencer;
	if (FirstReferencer)
	{
		FirstReferencer->Previous = Referencer;
	}
	FirstReferencer = Referencer;
}

void FGarbageCollector::RemoveReferencer(FGCObject* Referencer)
{
	(Referencer->Previous ? Referencer->Previous->Next : FirstReferencer) = Referencer->Next;
	if (Referencer->Next)
	{
		Referencer->Next->Previous = Referencer->Previous;
	}
}

FGCObject::FGCObject()
{
	FGarbageCollector::Get().AddReferencer(this);
}

FGCObject::FGCObject(const FGCObject&)
	: FGCObject()
{
}

FGCObject::~FGCObject()
{
	FGarbageCollector::Get().RemoveReferencer(this);
}

void CollectGarbage(EObjectFlags KeepFlags, bool)
{
	FGarbageCollector::Get().Collect(KeepFlags);
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
