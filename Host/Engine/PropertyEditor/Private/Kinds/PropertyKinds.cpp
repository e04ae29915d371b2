// Copyright Velmorant. All Rights Reserved.
// Which kind is whose.

#include "Kinds/BoolKind.h"
#include "Kinds/ContainerKinds.h"
#include "Kinds/EnumKind.h"
#include "Kinds/NumberKinds.h"
#include "Kinds/ObjectKinds.h"
#include "Kinds/PropertyKind.h"
#include "Kinds/StructKind.h"
#include "Kinds/TextKind.h"

namespace PropertyKinds
{
	const FPropertyKind Plain;
	const FBoolKind Bool;
	const FEnumKind Enum;
	const FFloatKind Float;
	const FIntegerKind Integer;
	const FTextKind Text;
	const FClassKind Class;
	const FHardObjectKind HardObject;
	const FSoftObjectKind SoftObject;
	const FObjectKind Object;
	const FStructKind Struct;
	const FArrayKind Array;
	const FSetKind Set;
	const FMapKind Map;

	struct FRow
	{
		uint64 PropertyClass; // its bit
		const FPropertyKind& Kind;
	};

	/** A property takes the first row that fits: special classes stand before general ones. */
	const FRow Rows[] = {
		{FBoolProperty::StaticClassCastFlags(), Bool},
		{FEnumProperty::StaticClassCastFlags(), Enum},
		{FFloatProperty::StaticClassCastFlags(), Float},
		{FDoubleProperty::StaticClassCastFlags(), Float},
		{FNumericProperty::StaticClassCastFlags(), Integer},
		{FTextProperty::StaticClassCastFlags(), Text},
		{FClassProperty::StaticClassCastFlags(), Class},
		{FObjectProperty::StaticClassCastFlags(), HardObject},
		{FSoftObjectProperty::StaticClassCastFlags(), SoftObject},
		{FObjectPropertyBase::StaticClassCastFlags(), Object},
		{FStructProperty::StaticClassCastFlags(), Struct},
		{FArrayProperty::StaticClassCastFlags(), Array},
		{FSetProperty::StaticClassCastFlags(), Set},
		{FMapProperty::StaticClassCastFlags(), Map},
	};
}

const FPropertyKind& FPropertyKind::Of(const FProperty* Property)
{
	if (Property == nullptr)
	{
		return PropertyKinds::Plain;
	}
	if (FEnumKind::FindEnum(*Property) != nullptr)
	{
		return PropertyKinds::Enum; // a byte can be one, too
	}
	for (const PropertyKinds::FRow& Row : PropertyKinds::Rows)
	{
		if (Property->GetClass()->HasAnyCastFlags(Row.PropertyClass))
		{
			return Row.Kind;
		}
	}
	return PropertyKinds::Plain;
}
