// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyValue.h"

#include "Misc/CString.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"

#include <cmath>

namespace PropertyValue
{
	namespace
	{
		bool TakesObject(const FObjectPropertyBase& Property, const UObject& Object)
		{
			const FClassProperty* Class = CastField<FClassProperty>(&Property);
			const FSoftClassProperty* SoftClass = CastField<FSoftClassProperty>(&Property);
			const UClass* MetaClass = Class != nullptr ? Class->MetaClass : SoftClass != nullptr ? SoftClass->MetaClass
																								 : nullptr;
			if (!Object.IsA(Property.PropertyClass))
			{
				return false;
			}
			return MetaClass == nullptr || Cast<UClass>(&Object)->IsChildOf(MetaClass);
		}

		/** Whether a number that was read from the text is not that number: it was too large for its type. */
		bool IsCutOff(const FProperty& Property, const void* Value, const FString& Text)
		{
			const FNumericProperty* Number = CastField<FNumericProperty>(&Property);
			if (Number == nullptr || !Number->IsInteger() || Number->IsEnum())
			{
				return false;
			}
			const bool bUnsigned = Number->IsA<FUInt64Property>();
			const double Stored = bUnsigned ? static_cast<double>(Number->GetUnsignedIntPropertyValue(Value)) : static_cast<double>(Number->GetSignedIntPropertyValue(Value));
			const double Wanted = FCString::Atod(*Text);
			return FMath::Abs(Stored - Wanted) > 1.0 + FMath::Abs(Wanted) * 1.e-9; // a fraction may go
		}

		/** Whether there is infinity, or what is no number, in a value or its members: it would spread to all that is worked out from it. */
		bool IsEndless(const FProperty& Property, const void* Value)
		{
			if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
			{
				return Number->IsFloatingPoint() && !std::isfinite(Number->GetFloatingPointPropertyValue(Value));
			}
			const FStructProperty* StructProperty = CastField<FStructProperty>(&Property);
			for (const FProperty* Member : TFieldRange<FProperty>(StructProperty != nullptr ? StructProperty->Struct : nullptr))
			{
				if (IsEndless(*Member, Member->ContainerPtrToValuePtr<void>(Value)))
				{
					return true;
				}
			}
			return false;
		}

		/** Whether all of Text is a value; then Value has it. */
		bool Import(const FProperty& Property, const FString& Text, void* Value, UObject* Owner)
		{
			const TCHAR* Rest = Property.ImportText_Direct(*Text, Value, Owner, PPF_PropertyWindow);
			return Rest != nullptr && FString(Rest).TrimStartAndEnd().IsEmpty() && !IsCutOff(Property, Value, Text) && !IsEndless(Property, Value);
		}
	}

	UEnum* GetEnum(const FProperty& Property)
	{
		if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(&Property))
		{
			return EnumProperty->GetEnum();
		}
		const FNumericProperty* Number = CastField<FNumericProperty>(&Property);
		return Number != nullptr ? Number->GetIntPropertyEnum() : nullptr;
	}

	const FProperty* GetStorage(const FPropertyNode& Node)
	{
		const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Node.GetProperty());
		return EnumProperty != nullptr ? EnumProperty->GetUnderlyingProperty() : Node.GetProperty();
	}

	FPropertyAccess::Result FindOne(const FPropertyNode& Node, TArray<void*>& OutValues)
	{
		if (Node.IsRoot() || !Node.GetValues(OutValues))
		{
			OutValues.Empty();
			return FPropertyAccess::Fail;
		}
		for (int32 Index = 1; Index < OutValues.Num(); ++Index)
		{
			if (!Node.GetProperty()->Identical(OutValues[0], OutValues[Index]))
			{
				OutValues.Empty();
				return FPropertyAccess::MultipleValues;
			}
		}
		return FPropertyAccess::Success;
	}

	FPropertyAccess::Result ReadObject(const FPropertyNode& Node, UObject*& OutObject)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = FindOne(Node, Values);
		const FObjectPropertyBase* Property = Result != FPropertyAccess::Fail ? CastField<FObjectPropertyBase>(Node.GetProperty()) : nullptr;
		if (Property == nullptr)
		{
			return FPropertyAccess::Fail;
		}
		if (Result == FPropertyAccess::Success)
		{
			const bool bSoft = Property->IsA<FSoftObjectProperty>();
			OutObject = bSoft ? FSoftObjectProperty::GetPropertyValue(Values[0]).LoadSynchronous() : Property->GetObjectPropertyValue(Values[0]);
		}
		return Result;
	}

	FPropertyAccess::Result WriteObject(FPropertyNode& Node, UObject* Object, EPropertyValueSetFlags::Type Flags)
	{
		FPropertyChange Change(Node);
		if (Change.Num() == 0)
		{
			return FPropertyAccess::Fail;
		}
		const FObjectPropertyBase* Property = CastField<FObjectPropertyBase>(Node.GetProperty());
		if (Property == nullptr || (Object != nullptr && !TakesObject(*Property, *Object)))
		{
			return FPropertyAccess::Fail;
		}
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			Property->SetObjectPropertyValue(Change.GetNewValue(Index), Object);
		}
		return Change.Apply(Flags);
	}

	FPropertyAccess::Result ReadText(const FPropertyNode& Node, FString& OutText, int32 PortFlags)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = FindOne(Node, Values);
		if (Result == FPropertyAccess::Success)
		{
			FString Text;
			Node.GetProperty()->ExportTextItem_Direct(Text, Values[0], Values[0], Node.GetObjects()[0], PortFlags);
			OutText = Text;
		}
		return Result;
	}

	FPropertyAccess::Result WriteText(FPropertyNode& Node, const FString& Text, EPropertyValueSetFlags::Type Flags)
	{
		FPropertyChange Change(Node);
		const TArray<UObject*> Owners = Node.GetObjects();
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			if (!Import(*Node.GetProperty(), Text, Change.GetNewValue(Index), Owners[Index]))
			{
				return FPropertyAccess::Fail;
			}
		}
		return Change.Apply(Flags);
	}

	FPropertyAccess::Result ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32 PortFlags)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = FindOne(Node, Values);
		if (Result != FPropertyAccess::Success)
		{
			return Result;
		}
		const UEnum* Enum = GetEnum(*Node.GetProperty());
		if (Enum == nullptr)
		{
			return ReadText(Node, OutText, PortFlags);
		}
		const FNumericProperty* Number = CastField<FNumericProperty>(GetStorage(Node));
		OutText = Enum->GetDisplayNameTextByValue(Number->GetSignedIntPropertyValue(Values[0])).ToString();
		return Result;
	}
}
