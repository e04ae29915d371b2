// Copyright Velmorant. All Rights Reserved.

#include "UObject/UnrealType.h"

#define IMPLEMENT_FIELD(Name, Bases) \
	FFieldClass* F##Name::StaticClass() \
	{ \
		static FFieldClass Class(TEXT(#Name), CASTCLASS_F##Name, CASTCLASS_F##Name | (Bases)); \
		return &Class; \
	}

IMPLEMENT_FIELD(Property, CASTCLASS_None)
IMPLEMENT_FIELD(NumericProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(Int8Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(Int16Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(IntProperty, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(Int64Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(ByteProperty, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(UInt16Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(UInt32Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(UInt64Property, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(FloatProperty, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(DoubleProperty, CASTCLASS_FNumericProperty | CASTCLASS_FProperty)
IMPLEMENT_FIELD(BoolProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(EnumProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(StrProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(NameProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(TextProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(StructProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(ArrayProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(SetProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(MapProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(ObjectPropertyBase, CASTCLASS_FProperty)
IMPLEMENT_FIELD(ObjectProperty, CASTCLASS_FObjectPropertyBase | CASTCLASS_FProperty)
IMPLEMENT_FIELD(WeakObjectProperty, CASTCLASS_FObjectPropertyBase | CASTCLASS_FProperty)
IMPLEMENT_FIELD(SoftObjectProperty, CASTCLASS_FObjectPropertyBase | CASTCLASS_FProperty)
IMPLEMENT_FIELD(ClassProperty, CASTCLASS_FObjectProperty | CASTCLASS_FObjectPropertyBase | CASTCLASS_FProperty)
IMPLEMENT_FIELD(SoftClassProperty, CASTCLASS_FSoftObjectProperty | CASTCLASS_FObjectPropertyBase | CASTCLASS_FProperty)
IMPLEMENT_FIELD(DelegateProperty, CASTCLASS_FProperty)
IMPLEMENT_FIELD(MulticastDelegateProperty, CASTCLASS_FProperty)
