// Copyright Velmorant. All Rights Reserved.

#include "Kinds/EnumKind.h"

#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"
#include "Values/SPropertyEnum.h"

namespace EnumKind
{
	const FProperty* FindStorage(const FProperty& Property)
	{
		const FEnumProperty* EnumProperty = CastField<FEnumProperty>(&Property);
		return EnumProperty != nullptr ? EnumProperty->GetUnderlyingProperty() : &Property;
	}
}

UEnum* FEnumKind::FindEnum(const FProperty& Property)
{
	if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(&Property))
	{
		return EnumProperty->GetEnum();
	}
	const FNumericProperty* Number = CastField<FNumericProperty>(&Property);
	return Number != nullptr ? Number->GetIntPropertyEnum() : nullptr;
}

int64 FEnumKind::GetValue(const FProperty& Property, const void* Value)
{
	return CastFieldChecked<FNumericProperty>(EnumKind::FindStorage(Property))->GetSignedIntPropertyValue(Value);
}

void FEnumKind::SetValue(const FProperty& Property, void* Value, int64 NewValue)
{
	CastFieldChecked<FNumericProperty>(EnumKind::FindStorage(Property))->SetIntPropertyValue(Value, NewValue);
}

const FProperty* FEnumKind::GetStorage(const FProperty& Property) const
{
	return EnumKind::FindStorage(Property);
}

FPropertyAccess::Result FEnumKind::ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32) const
{
	TArray<void*> Values;
	const FPropertyAccess::Result Result = PropertyValue::FindOne(Node, Values);
	if (Result == FPropertyAccess::Success)
	{
		const FProperty& Property = *Node.GetProperty();
		OutText = FindEnum(Property)->GetDisplayNameTextByValue(GetValue(Property, Values[0])).ToString();
	}
	return Result;
}

TSharedRef<SWidget> FEnumKind::MakeValue(const TSharedRef<FPropertyNode>& Node) const
{
	return SNew(SPropertyEnum, Node).IsEnabled_Static(&PropertyWidgets::CanEdit, Node);
}

TArray<FName> FEnumKind::GetTypeNames(const FProperty& Property) const
{
	return {FindEnum(Property)->GetFName()};
}
