// Copyright Velmorant. All Rights Reserved.

#include "Kinds/ObjectKinds.h"

#include "Kinds/TypeNames.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"

FPropertyAccess::Result FObjectKind::ReadObject(const FPropertyNode& Node, UObject*& OutObject) const
{
	TArray<void*> Values;
	const FPropertyAccess::Result Result = PropertyValue::FindOne(Node, Values);
	if (Result == FPropertyAccess::Success)
	{
		OutObject = Follow(*Node.GetProperty(), Values[0]);
	}
	return Result;
}

FPropertyAccess::Result FObjectKind::WriteObject(FPropertyNode& Node, UObject* Object, EPropertyValueSetFlags::Type Flags) const
{
	FPropertyChange Change(Node);
	if (Change.Num() == 0 || (Object != nullptr && !Takes(*Node.GetProperty(), *Object)))
	{
		return FPropertyAccess::Fail;
	}
	for (int32 Index = 0; Index < Change.Num(); ++Index)
	{
		CastFieldChecked<FObjectPropertyBase>(Node.GetProperty())->SetObjectPropertyValue(Change.GetNewValue(Index), Object);
	}
	return Change.Apply(Flags);
}

TArray<FName> FObjectKind::GetTypeNames(const FProperty& Property) const
{
	return TypeNames::GetChain(CastFieldChecked<FObjectPropertyBase>(&Property)->PropertyClass);
}

UObject* FObjectKind::Follow(const FProperty& Property, const void* Value) const
{
	return CastFieldChecked<FObjectPropertyBase>(&Property)->GetObjectPropertyValue(Value);
}

const UClass* FObjectKind::FindMetaClass(const FProperty&) const
{
	return nullptr;
}

bool FObjectKind::Takes(const FProperty& Property, const UObject& Object) const
{
	if (!Object.IsA(CastFieldChecked<FObjectPropertyBase>(&Property)->PropertyClass))
	{
		return false;
	}
	const UClass* MetaClass = FindMetaClass(Property);
	return MetaClass == nullptr || Cast<UClass>(&Object)->IsChildOf(MetaClass);
}

FString FHardObjectKind::GetEditText(const FPropertyNode& Node, const void* Value) const
{
	const UObject* Object = Follow(*Node.GetProperty(), Value);
	return Object != nullptr ? Object->GetPathName() : FString(TEXT("None"));
}

const UClass* FClassKind::FindMetaClass(const FProperty& Property) const
{
	return CastFieldChecked<FClassProperty>(&Property)->MetaClass;
}

UObject* FSoftObjectKind::Follow(const FProperty&, const void* Value) const
{
	return FSoftObjectProperty::GetPropertyValue(Value).LoadSynchronous();
}
