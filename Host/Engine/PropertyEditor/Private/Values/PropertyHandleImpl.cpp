// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyHandleImpl.h"

#include "Kinds/PropertyKind.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"

namespace PropertyHandle
{
	template<typename PropertyType>
	struct TFitsKind
	{
		static bool Test(const FProperty* Property) { return CastField<PropertyType>(Property) != nullptr; }
	};

	template<typename T>
	struct TFitsStruct
	{
		static bool Test(const FProperty* Property)
		{
			const FStructProperty* StructProperty = CastField<FStructProperty>(Property);
			return StructProperty != nullptr && StructProperty->Struct == TBaseStructure<T>::Get();
		}
	};

	/** Whether the property's values are exactly of the C++ type. */
	template<typename T>
	struct TFits;

#define FITS_KIND(Type, PropertyType) \
	template<> \
	struct TFits<Type> : public TFitsKind<PropertyType> \
	{ \
	};
#define FITS_STRUCT(Type) \
	template<> \
	struct TFits<Type> : public TFitsStruct<Type> \
	{ \
	};
	FITS_KIND(float, FFloatProperty)
	FITS_KIND(double, FDoubleProperty)
	FITS_KIND(bool, FBoolProperty)
	FITS_KIND(int8, FInt8Property)
	FITS_KIND(int16, FInt16Property)
	FITS_KIND(int32, FIntProperty)
	FITS_KIND(int64, FInt64Property)
	FITS_KIND(uint8, FByteProperty)
	FITS_KIND(uint16, FUInt16Property)
	FITS_KIND(uint32, FUInt32Property)
	FITS_KIND(uint64, FUInt64Property)
	FITS_KIND(FString, FStrProperty)
	FITS_KIND(FText, FTextProperty)
	FITS_KIND(FName, FNameProperty)
	FITS_STRUCT(FVector)
	FITS_STRUCT(FVector2D)
	FITS_STRUCT(FRotator)
#undef FITS_KIND
#undef FITS_STRUCT

	template<typename T>
	FPropertyAccess::Result Read(const FPropertyNode& Node, T& OutValue)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = PropertyValue::FindOne(Node, Values);
		if (Result != FPropertyAccess::Fail && !TFits<T>::Test(Node.GetKind().GetStorage(*Node.GetProperty())))
		{
			return FPropertyAccess::Fail;
		}
		if (Result == FPropertyAccess::Success)
		{
			OutValue = *static_cast<const T*>(Values[0]);
		}
		return Result;
	}

	template<typename T>
	FPropertyAccess::Result Write(FPropertyNode& Node, const T& Value, EPropertyValueSetFlags::Type Flags)
	{
		FPropertyChange Change(Node);
		if (Change.Num() == 0 || !TFits<T>::Test(Node.GetKind().GetStorage(*Node.GetProperty())))
		{
			return FPropertyAccess::Fail;
		}
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			*static_cast<T*>(Change.GetNewValue(Index)) = Value;
		}
		return Change.Apply(Flags);
	}
}

#define DEFINE_HANDLE_VALUE(ValueType) \
	FPropertyAccess::Result FPropertyHandle::GetValue(ValueType& OutValue) const \
	{ \
		return PropertyHandle::Read(*Node, OutValue); \
	} \
	FPropertyAccess::Result FPropertyHandle::SetValue(const ValueType& InValue, EPropertyValueSetFlags::Type Flags) \
	{ \
		return PropertyHandle::Write(*Node, InValue, Flags); \
	}
FOR_EACH_PLAIN_VALUE_TYPE(DEFINE_HANDLE_VALUE)
#undef DEFINE_HANDLE_VALUE

TSharedPtr<IPropertyHandle> FPropertyHandle::Make(const TSharedPtr<FPropertyNode>& InNode)
{
	return InNode.IsValid() ? TSharedPtr<IPropertyHandle>(MakeShared<FPropertyHandle>(InNode.ToSharedRef())) : nullptr;
}

TSharedPtr<IPropertyHandle> FPropertyHandle::GetChildHandle(FName ChildName, bool bRecurse) const
{
	return Make(Node->HasValues() ? Node->FindChild(ChildName, bRecurse) : nullptr);
}

TSharedPtr<IPropertyHandle> FPropertyHandle::GetChildHandle(uint32 Index) const
{
	if (!Node->HasValues())
	{
		return nullptr;
	}
	const TArray<TSharedRef<FPropertyNode>>& Children = Node->GetChildren();
	return Index < static_cast<uint32>(Children.Num()) ? Make(Children[static_cast<int32>(Index)]) : nullptr;
}

FPropertyAccess::Result FPropertyHandle::GetNumChildren(uint32& OutNumChildren) const
{
	if (!Node->HasValues())
	{
		return FPropertyAccess::Fail;
	}
	OutNumChildren = static_cast<uint32>(Node->GetChildren().Num());
	return FPropertyAccess::Success;
}

FPropertyAccess::Result FPropertyHandle::GetValue(UObject*& OutValue) const
{
	return Node->GetKind().ReadObject(*Node, OutValue);
}

FPropertyAccess::Result FPropertyHandle::GetValue(const UObject*& OutValue) const
{
	UObject* Object = nullptr;
	const FPropertyAccess::Result Result = Node->GetKind().ReadObject(*Node, Object);
	if (Result == FPropertyAccess::Success)
	{
		OutValue = Object;
	}
	return Result;
}

FPropertyAccess::Result FPropertyHandle::GetValue(FAssetData& OutValue) const
{
	UObject* Object = nullptr;
	const FPropertyAccess::Result Result = Node->GetKind().ReadObject(*Node, Object);
	if (Result == FPropertyAccess::Success)
	{
		OutValue = Object != nullptr ? FAssetData(Object) : FAssetData();
	}
	return Result;
}

FPropertyAccess::Result FPropertyHandle::SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags)
{
	return Node->GetKind().WriteObject(*Node, InValue, Flags);
}

FPropertyAccess::Result FPropertyHandle::SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags)
{
	return Node->GetKind().WriteObject(*Node, const_cast<UObject*>(InValue), Flags);
}

FPropertyAccess::Result FPropertyHandle::SetValue(const FAssetData& InValue, EPropertyValueSetFlags::Type Flags)
{
	return Node->GetKind().WriteObject(*Node, InValue.GetAsset(), Flags);
}

FPropertyAccess::Result FPropertyHandle::SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags)
{
	return PropertyHandle::Write(*Node, FString(InValue), Flags);
}

FPropertyAccess::Result FPropertyHandle::GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags) const
{
	return PropertyValue::ReadText(*Node, OutValue, PortFlags);
}

FPropertyAccess::Result FPropertyHandle::SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags)
{
	return PropertyValue::WriteText(*Node, InValue, Flags);
}

void FPropertyHandle::SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged)
{
	Node->OnValueChanged.Add(InOnPropertyValueChanged);
}

void FPropertyHandle::SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged)
{
	Node->OnChildValueChanged.Add(InOnChildPropertyValueChanged);
}

TSharedRef<SWidget> FPropertyHandle::CreatePropertyNameWidget(const FText& NameOverride, const FText& ToolTipOverride) const
{
	return PropertyWidgets::MakeName(Node, NameOverride, ToolTipOverride);
}

FProperty* FPropertyHandle::GetProperty() const
{
	return Node->HasValues() ? Node->GetProperty() : nullptr;
}
