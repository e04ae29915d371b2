// Copyright Velmorant. All Rights Reserved.

#include "Transactions/ObjectRecord.h"

#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace ObjectRecord
{
	TUniquePtr<FScratchValue> Copy(const UObject& Object, const FProperty& Property)
	{
		TUniquePtr<FScratchValue> Value = MakeUnique<FScratchValue>(&Property);
		Property.CopyCompleteValue(Value->Get(), Property.ContainerPtrToValuePtr(&Object));
		return Value;
	}
}

FObjectRecord::FPlace::FPlace(const UObject& InObject)
	: Name(InObject.GetFName())
	, Outer(InObject.GetOuter())
	, bGarbage(!IsValid(&InObject))
{
}

bool FObjectRecord::FPlace::operator==(const FPlace& Other) const
{
	return Outer == Other.Outer && bGarbage == Other.bGarbage && Name.IsEqual(Other.Name, ENameCase::CaseSensitive);
}

FObjectRecord::FObjectRecord(UObject& InObject)
	: Object(&InObject)
	, Before(InObject)
	, After(InObject)
{
	const auto& Properties = Object->GetClass()->GetAllProperties();
	Values.Reserve(Properties.Num());
	for (const FProperty* Property : Properties)
	{
		Values.Add({Property, ObjectRecord::Copy(*Object, *Property), nullptr});
	}
}

bool FObjectRecord::Finish()
{
	After = FPlace(*Object);
	Values.RemoveAll([this](const FValue& Value) {
		return Value.Property->Identical(Value.Before->Get(), Value.Property->ContainerPtrToValuePtr(Object));
	});
	for (FValue& Value : Values)
	{
		Value.After = ObjectRecord::Copy(*Object, *Value.Property);
	}
	return !Values.IsEmpty() || !(Before == After);
}

void FObjectRecord::RestoreBefore()
{
	MoveTo(Before);
	Write(&FValue::Before);
}

void FObjectRecord::RestoreAfter()
{
	MoveTo(After);
	Write(&FValue::After);
}

void FObjectRecord::MoveTo(const FPlace& Place)
{
	if (Before == After)
	{
		return;
	}
	Object->MarkPackageDirty(); // where it leaves
	if (Object->GetOuter() != Place.Outer || !Object->GetFName().IsEqual(Place.Name, ENameCase::CaseSensitive))
	{
		// Something that no step knows of may have taken the name.
		const UObject* Taken = StaticFindObjectFast(nullptr, Place.Outer, Place.Name);
		const bool bFree = Taken == nullptr || Taken == Object;
		const FName Name = bFree ? Place.Name : MakeUniqueObjectName(Place.Outer, Object->GetClass(), Place.Name);
		Object->Rename(*Name.ToString(), Place.Outer, REN_DoNotDirty | REN_DontCreateRedirectors);
	}
	if (!Place.bGarbage)
	{
		Object->ClearGarbage();
	}
	else if (!Object->IsRooted())
	{
		Object->MarkAsGarbage();
	}
}

void FObjectRecord::Write(TUniquePtr<FScratchValue> FValue::*Moment)
{
	for (const FValue& Value : Values)
	{
		Value.Property->CopyCompleteValue(Value.Property->ContainerPtrToValuePtr(Object), (Value.*Moment)->Get());
	}
	Object->MarkPackageDirty();
}

void FObjectRecord::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(Object);
	Collector.AddReferencedObject(Before.Outer);
	Collector.AddReferencedObject(After.Outer);
	for (const FValue& Value : Values)
	{
		for (const FScratchValue* Moment : {Value.Before.Get(), Value.After.Get()})
		{
			if (Moment != nullptr)
			{
				Value.Property->CollectReferences(Moment->Get(), Collector);
			}
		}
	}
}
